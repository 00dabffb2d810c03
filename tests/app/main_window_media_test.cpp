#include <QCheckBox>
#include <QTimer>

#include "support/main_window_fixture.h"
#include "support/timers.h"

using namespace Qt::StringLiterals;

namespace {

/// The main window over a program folder with two pieces of music on the playlist and one sound.
class MainWindowMedia : public MainWindowTest {
  protected:
    MainWindowMedia() {
        for (const char *folder : {"angol/hangok", "angol/zenemid", "c/zbrmk/kavaro"})
            QDir(root_.path()).mkpath(QString::fromUtf8(folder));
        write_file(place("angol/hangok/bell.wav"), "RIFF");
        for (const char *piece : {"angol/zenemid/dal.mid", "angol/zenemid/polka.mid"})
            write_file(place(piece), "MThd");
        store(" 1\r\npolka.mid\r\ndal.mid\r\n");
    }

    /// Settings of the music.
    void store(const QByteArray &lines) const { write_file(place("c/zbrmk/kavaro/zenebeáll.ini"), lines); }

    /// One second of the music timer. Returns what was sent but for the question.
    QStringList tick() {
        multimedia_.take_sent();
        expire(reference_.Timer_zene());
        QStringList sent = multimedia_.take_sent();
        sent.removeAll(u"Status midi mode|255"_s);
        return sent;
    }
    [[nodiscard]] QStringList start_of(const char *piece) const {
        return {u"open \"%1\" type sequencer alias midi|0"_s.arg(place("angol/zenemid/") + QString::fromUtf8(piece)),
                u"play midi |0"_s};
    }

    /// The window of this name, if there is one.
    [[nodiscard]] static QWidget *find(const char16_t *name) {
        for (QWidget *window : QApplication::topLevelWidgets()) {
            if (window->objectName() == QString::fromUtf16(name))
                return window;
        }
        return nullptr;
    }
    template <class Control>
    [[nodiscard]] static Control *in(QWidget *window, const char16_t *name) {
        auto *found = window->findChild<Control *>(QString::fromUtf16(name));
        if (!found)
            qFatal("no control %s", qPrintable(QString::fromUtf16(name)));
        return found;
    }

    /// Chooses a menu item that opens a window. `act` is called while it is open; it is closed then.
    void open(const char *item, const char16_t *name, const std::function<void(QWidget *)> &act) {
        bool opened = false;
        QTimer::singleShot(0, window_.get(), [&] {
            QWidget *window = QApplication::activeModalWidget();
            opened = window && window->objectName() == QString::fromUtf16(name);
            if (opened)
                act(window);
            if (window)
                window->hide();
        });
        action(item)->trigger();
        EXPECT_TRUE(opened) << item;
    }

    const QStringList stop_{u"close midi|0"_s};
};

TEST_F(MainWindowMedia, has_its_menu_of_settings_after_the_others) {
    start();

    QStringList captions;
    for (const QAction *item : control<QMenu>("mnubeállítás")->actions())
        captions.append(item->text());
    EXPECT_EQ(control<QMenu>("mnubeállítás")->title(), u"&Beállítások"_s);
    EXPECT_EQ(captions, QStringList({u"&Hangok..."_s, u"&Zene..."_s}));
    EXPECT_EQ(window_->menüsor()->actions().last(), control<QMenu>("mnubeállítás")->menuAction());
    EXPECT_TRUE(control<QMenu>("mnubeállítás")->isEnabled());
}

TEST_F(MainWindowMedia, opens_the_settings_of_the_sounds_over_the_other_windows) {
    start();

    open("mnubeállításhang", u"frm_hangbeáll", [](QWidget *window) {
        EXPECT_EQ(window->windowTitle(), u"Zimbora Angol-Magyar Szótár - Kavaro Hangbeállítások"_s);
        EXPECT_EQ(window->windowModality(), Qt::ApplicationModal);
        EXPECT_EQ(in<ListBox>(window, u"Filelist")->items(), QStringList(u"bell.wav"_s));
    });

    EXPECT_TRUE(window_->isVisible());
}

TEST_F(MainWindowMedia, opens_the_settings_of_the_music_over_the_other_windows) {
    start();

    open("mnubeállítászene", u"frm_zenebeáll", [](QWidget *window) {
        EXPECT_EQ(window->windowTitle(), u"Zimbora Angol-Magyar Szótár - Zenei beállítások"_s);
        EXPECT_EQ(window->windowModality(), Qt::ApplicationModal);
        EXPECT_EQ(in<ListBox>(window, u"list_playlist")->items(), QStringList({u"polka.mid"_s, u"dal.mid"_s}));
    });

    EXPECT_TRUE(window_->isVisible());
}

TEST_F(MainWindowMedia, keeps_the_windows_of_the_settings_once_they_are_made) {
    start();
    QWidget *sounds = nullptr;
    open("mnubeállításhang", u"frm_hangbeáll", [&](QWidget *window) { sounds = window; });

    open("mnubeállításhang", u"frm_hangbeáll", [&](QWidget *window) { EXPECT_EQ(window, sounds); });
}

TEST_F(MainWindowMedia, plays_a_sound_of_the_program_folder) {
    start();

    open("mnubeállításhang", u"frm_hangbeáll",
         [](QWidget *window) { QTest::keyClick(in<ListBox>(window, u"Filelist"), Qt::Key_Down); });

    EXPECT_EQ(multimedia_.sent,
              QStringList({u"open \"%1\" type waveaudio alias hang|0"_s.arg(place("angol/hangok/bell.wav")),
                           u"play hang |0"_s}));
}

TEST_F(MainWindowMedia, makes_the_hidden_window_of_the_music_at_the_first_tick) {
    start();
    EXPECT_EQ(find(u"frm_zenebeáll"), nullptr);
    EXPECT_EQ(multimedia_.sent, QStringList());

    tick();

    ASSERT_NE(find(u"frm_zenebeáll"), nullptr);
    EXPECT_FALSE(find(u"frm_zenebeáll")->isVisible());
}

TEST_F(MainWindowMedia, makes_the_hidden_window_of_the_music_even_if_no_music_is_allowed) {
    store(" 0\r\npolka.mid\r\n");
    start();

    tick();

    EXPECT_NE(find(u"frm_zenebeáll"), nullptr);
}

TEST_F(MainWindowMedia, plays_the_playlist_tick_by_tick_and_begins_again) {
    start();

    EXPECT_EQ(tick(), start_of("polka.mid"));
    EXPECT_EQ(tick(), stop_ + start_of("dal.mid"));
    EXPECT_EQ(tick(), stop_ + start_of("polka.mid"));
}

TEST_F(MainWindowMedia, waits_while_a_piece_plays) {
    start();
    tick();
    multimedia_.mode = u"playing"_s;

    EXPECT_EQ(tick(), QStringList());
    EXPECT_EQ(reference_.felirat(), u"polka.mid"_s);
}

TEST_F(MainWindowMedia, asks_nothing_and_plays_nothing_while_no_music_is_allowed) {
    store(" 0\r\npolka.mid\r\ndal.mid\r\n");
    start();

    expire(reference_.Timer_zene());
    expire(reference_.Timer_zene());

    EXPECT_EQ(multimedia_.sent, QStringList());
    EXPECT_EQ(reference_.felirat(), u"Zimbora Angol-Magyar Szótár"_s);
}

TEST_F(MainWindowMedia, leaves_the_caption_alone_while_there_is_nothing_to_play) {
    store(" 1\r\n");
    start();

    EXPECT_EQ(tick(), QStringList());
    EXPECT_EQ(reference_.felirat(), u"Zimbora Angol-Magyar Szótár"_s);
}

TEST_F(MainWindowMedia, gives_windows_made_from_then_on_the_name_of_the_piece_in_their_titles) {
    start();
    const QString title = window_->windowTitle();

    tick();

    EXPECT_EQ(reference_.felirat(), u"polka.mid"_s);
    EXPECT_EQ(window_->windowTitle(), title);
    open("mnubeállításhang", u"frm_hangbeáll",
         [](QWidget *window) { EXPECT_EQ(window->windowTitle(), u"polka.mid - Kavaro Hangbeállítások"_s); });
}

TEST_F(MainWindowMedia, plays_what_the_window_of_the_music_shows_before_it_is_saved) {
    start();
    tick();

    open("mnubeállítászene", u"frm_zenebeáll", [&](QWidget *window) {
        // Takes the piece that is heard off the list, which starts the other one.
        QTest::mouseClick(in<QPushButton>(window, u"cmd_törl"), Qt::LeftButton);
        EXPECT_EQ(tick(), QStringList());
        EXPECT_EQ(reference_.felirat(), u"dal.mid"_s);
        QTest::mouseClick(in<QCheckBox>(window, u"chk_zene_enged"), Qt::LeftButton, {}, QPoint(8, 8));
        EXPECT_FALSE(in<QCheckBox>(window, u"chk_zene_enged")->isChecked());
        expire(reference_.Timer_zene());
        EXPECT_EQ(multimedia_.sent, QStringList());
        QTest::keyClick(window, Qt::Key_Escape);
        EXPECT_FALSE(window->isVisible());
    });

    EXPECT_EQ(tick(), start_of("polka.mid"));
}

TEST_F(MainWindowMedia, tells_of_damaged_settings_of_the_music_only_when_their_window_is_opened) {
    store("polka.mid\r\ndal.mid\r\n");
    start();
    EXPECT_EQ(tick(), start_of("polka.mid"));
    EXPECT_EQ(boxes_.told, QStringList());

    open("mnubeállítászene", u"frm_zenebeáll", [](QWidget *) {});

    EXPECT_EQ(boxes_.told.size(), 1);
}

TEST_F(MainWindowMedia, saves_the_sounds_that_are_open_when_the_program_ends) {
    start();

    open("mnubeállításhang", u"frm_hangbeáll", [this](QWidget *window) {
        in<QCheckBox>(window, u"chk_hang_a_főablakban")->setChecked(false);
        window_->kilép_Click();
    });

    EXPECT_TRUE(ended_);
    EXPECT_EQ(read_file(place("angol/kavaro/grathang.ini")), " 1\r\n 1\r\n 1\r\n 1\r\n 0\r\n");
}

TEST_F(MainWindowMedia, does_not_end_while_sounds_that_are_open_cannot_be_saved) {
    start();
    QDir(place("angol/kavaro")).removeRecursively();
    write_file(place("angol/kavaro"), "a file in the place of the folder");

    open("mnubeállításhang", u"frm_hangbeáll", [this](QWidget *window) {
        window_->kilép_Click();
        EXPECT_TRUE(window->isVisible());
    });

    EXPECT_FALSE(ended_);
    EXPECT_FALSE(window_->vége());
    EXPECT_TRUE(window_->isVisible());
    EXPECT_EQ(boxes_.told.size(), 1);
}

}  // namespace
