#include "media/widgets/music_settings_window.h"

#include <QAccessible>
#include <QFontMetrics>

#include "support/music_settings_fixture.h"

using namespace Qt::StringLiterals;

namespace {

class MusicSettingsWindow : public MusicSettingsTest {
  protected:
    /// Names of the buttons that can be pressed, but for those that close the window.
    [[nodiscard]] QStringList usable() const {
        QStringList names;
        for (const char *name : {"cmd_add", "cmd_törl", up, down}) {
            if (enabled(name))
                names.append(QString::fromUtf8(name));
        }
        return names;
    }
    /// True for the picture of a white arrow whose head, wider than its shaft, is in the upper half.
    [[nodiscard]] static bool points_up(const QImage &arrow) {
        const auto white = [&](int from, int to) {
            int pixels = 0;
            for (int y = from; y < to; ++y) {
                for (int x = 0; x < arrow.width(); ++x)
                    pixels += arrow.pixelColor(x, y).lightness() > 200 ? 1 : 0;
            }
            return pixels;
        };
        return white(0, arrow.height() / 2) > white(arrow.height() / 2, arrow.height());
    }
    [[nodiscard]] static QStringList names(std::initializer_list<const char *> some) {
        QStringList all;
        for (const char *name : some)
            all.append(QString::fromUtf8(name));
        return all;
    }
};

TEST_F(MusicSettingsWindow, has_every_control_under_its_name_with_its_caption) {
    start();

    EXPECT_EQ(window_->objectName(), u"frm_zenebeáll"_s);
    EXPECT_EQ(window_->windowTitle(), u"Zimbora Angol-Magyar Szótár - Zenei beállítások"_s);
    EXPECT_EQ(label("Label2"), u"A rendelkezésre álló zenei fájlok:"_s);
    EXPECT_EQ(label("Label1"), u"A lejátszásra kerülő zenei fájlok:"_s);
    EXPECT_EQ(label("lab_türelem"), u"Fájl.mid lejátszása"_s);
    EXPECT_EQ(button("cmd_add")->text(), u"Zene hozzáadása a listához"_s);
    EXPECT_EQ(button("cmd_törl")->text(), u"Zene törlése a listából"_s);
    EXPECT_EQ(button("cmd_ok")->text(), u"Ok"_s);
    EXPECT_EQ(button("cmd_mégsem")->text(), u"Mégsem"_s);
    EXPECT_EQ(box("chk_zene_enged")->text(), u"Zene engedélyezése"_s);
}

TEST_F(MusicSettingsWindow, has_arrows_on_the_buttons_that_move_one_above_the_other) {
    start();

    for (const char *name : {up, down}) {
        EXPECT_EQ(button(name)->text(), QString());
        EXPECT_FALSE(picture(button(name)).isNull()) << name;
        EXPECT_FALSE(button(name)->toolTip().isEmpty()) << name;
    }
    EXPECT_TRUE(points_up(picture(button(up))));
    EXPECT_TRUE(points_up(picture(button(down)).mirrored()));
    EXPECT_LT(window_->hely(button(up)).bottom(), window_->hely(button(down)).top());
}

TEST_F(MusicSettingsWindow, takes_colour_and_icon_of_the_program) {
    start();

    EXPECT_EQ(window_->háttérszín(), reference_.háttérszín());
    EXPECT_FALSE(window_->windowIcon().isNull());
}

TEST_F(MusicSettingsWindow, lists_the_pieces_of_the_folder) {
    put_piece(u"leírás.txt"_s);
    put_piece(u"hang.wav"_s);
    QDir().mkdir(piece(u"mappa.mid"_s));

    start();

    EXPECT_EQ(list("filelist_zene")->items(), QStringList({aria, dance, march, waltz}));
}

TEST_F(MusicSettingsWindow, opens_silently_with_nothing_selected) {
    start_with({march, aria});

    EXPECT_EQ(multimedia_.sent, QStringList());
    EXPECT_EQ(playlist(), QStringList({march, aria}));
    EXPECT_EQ(list("list_playlist")->selected(), -1);
    EXPECT_EQ(list("filelist_zene")->selected(), -1);
    EXPECT_EQ(usable(), QStringList());
    EXPECT_FALSE(notice()->isVisible());
}

TEST_F(MusicSettingsWindow, stands_without_a_folder_of_music) {
    QDir(place("program/zenemid")).removeRecursively();

    start();

    EXPECT_EQ(list("filelist_zene")->items(), QStringList());
    EXPECT_EQ(usable(), QStringList());
    EXPECT_EQ(boxes_.told, QStringList());
}

TEST_F(MusicSettingsWindow, begins_in_the_list_of_files) {
    load();

    open([this] { EXPECT_EQ(window_->focusWidget(), list("filelist_zene")); });
}

TEST_F(MusicSettingsWindow, stays_silent_while_tab_goes_through_its_lists) {
    start_with({march, aria});

    EXPECT_EQ(tab_order(*window_), u"filelist_zene list_playlist chk_zene_enged cmd_ok cmd_mégsem"_s);

    EXPECT_EQ(multimedia_.sent, QStringList());
    EXPECT_EQ(list("list_playlist")->selected(), -1);
}

TEST_F(MusicSettingsWindow, is_reached_by_tab_from_control_to_control) {
    start_with({march, dance, aria});
    click_item("list_playlist", dance);
    click_item("filelist_zene", aria);

    EXPECT_EQ(tab_order(*window_),
              u"filelist_zene list_playlist cmd_áthelyez(0) cmd_áthelyez(2) cmd_add "
              "cmd_törl chk_zene_enged cmd_ok cmd_mégsem"_s);
}

TEST_F(MusicSettingsWindow, gives_every_control_an_accessible_name) {
    start();

    for (QWidget *one : window_->vezérlők()) {
        const auto *spoken = QAccessible::queryAccessibleInterface(one);
        EXPECT_FALSE(spoken->text(QAccessible::Name).isEmpty()) << one->objectName().toStdString();
    }
}

TEST_F(MusicSettingsWindow, enables_adding_while_a_file_is_selected) {
    start_with({march, aria});

    click_item("filelist_zene", dance);

    EXPECT_EQ(usable(), names({"cmd_add"}));
}

TEST_F(MusicSettingsWindow, enables_removing_and_moving_for_the_selected_entry) {
    start_with({march, dance, aria});

    click_item("list_playlist", march);
    EXPECT_EQ(usable(), names({"cmd_törl", down}));
    click_item("list_playlist", dance);
    EXPECT_EQ(usable(), names({"cmd_törl", up, down}));
    click_item("list_playlist", aria);
    EXPECT_EQ(usable(), names({"cmd_törl", up}));
}

TEST_F(MusicSettingsWindow, enables_no_moving_in_a_playlist_of_one_entry) {
    start_with({march});

    click_item("list_playlist", march);

    EXPECT_EQ(usable(), names({"cmd_törl"}));
}

TEST_F(MusicSettingsWindow, plays_a_file_that_is_clicked_or_reached_by_key) {
    start();

    click_item("filelist_zene", dance);
    EXPECT_EQ(multimedia_.take_sent(), start_of(dance));
    press("filelist_zene", Qt::Key_Down);
    EXPECT_EQ(multimedia_.take_sent(), change_to(march));
}

TEST_F(MusicSettingsWindow, plays_an_entry_that_is_clicked_or_reached_by_key) {
    start_with({march, aria, waltz});

    click_item("list_playlist", aria);
    EXPECT_EQ(multimedia_.take_sent(), start_of(aria));
    press("list_playlist", Qt::Key_Down);
    EXPECT_EQ(multimedia_.take_sent(), change_to(waltz));
    press("list_playlist", Qt::Key_Home);
    EXPECT_EQ(multimedia_.take_sent(), change_to(march));
}

TEST_F(MusicSettingsWindow, starts_the_same_file_not_twice_in_a_row) {
    start_with({march, aria});

    click_item("list_playlist", march);
    EXPECT_EQ(multimedia_.take_sent(), start_of(march));
    click_item("list_playlist", march);
    click_item("filelist_zene", march);
    click_item("list_playlist", march);
    EXPECT_EQ(multimedia_.take_sent(), QStringList());
    click_item("filelist_zene", aria);
    EXPECT_EQ(multimedia_.take_sent(), change_to(aria));
    click_item("list_playlist", aria);
    EXPECT_EQ(multimedia_.take_sent(), QStringList());
    click_item("list_playlist", march);
    EXPECT_EQ(multimedia_.take_sent(), change_to(march));
}

TEST_F(MusicSettingsWindow, tries_to_start_an_entry_whose_file_is_missing) {
    start_with({march, u"nincs.mid"_s});

    click_item("list_playlist", u"nincs.mid"_s);

    EXPECT_EQ(multimedia_.take_sent(), start_of(u"nincs.mid"_s));
    EXPECT_EQ(boxes_.told, QStringList());
}

TEST_F(MusicSettingsWindow, shows_every_caption_whole_and_apart) {
    for (const QSize &pixels : screens) {
        use_screen(pixels);
        start_with({march, aria});

        expect_no_overlap(*window_);
        for (const char *name : {"Label1", "Label2", "cmd_add", "cmd_törl", "chk_zene_enged", "cmd_ok", "cmd_mégsem"})
            expect_whole_caption(*window_, QString::fromUtf8(name));
        for (const char *name : {up, down}) {
            EXPECT_LT(button(name)->iconSize().width(), button(name)->width());
            EXPECT_LT(button(name)->iconSize().height(), button(name)->height());
        }
        EXPECT_LE(window_->width(), pixels.width());
        EXPECT_LE(window_->height(), pixels.height());
    }
}

/// The notice that is shown while a file is being opened.
class MusicNotice : public MusicSettingsTest {
  protected:
    /// How the notice looks while the device opens a file.
    struct Look {
        bool visible = false;
        bool in_front = false;
        QString text;
        double points = 0;
        /// Width of the text and of the label, in pixels.
        int text_width = 0;
        int width = 0;
        int text_height = 0;
        QRect place;
    };

    MusicNotice() {
        multimedia_.meanwhile = [this] {
            if (!multimedia_.sent.last().startsWith(u"open "_s))
                return;
            const QFontMetrics letters(notice()->font());
            const auto on_top = notice()->parentWidget()->childAt(notice()->geometry().center());
            look_ = {notice()->isVisible(),
                     on_top == notice(),
                     notice()->text(),
                     notice()->font().pointSizeF(),
                     letters.horizontalAdvance(notice()->text()),
                     notice()->width(),
                     letters.height(),
                     notice()->geometry()};
        };
    }

    Look look_;
};

TEST_F(MusicNotice, stands_in_front_while_the_file_is_opened_and_goes_then) {
    start_with({march, dance});
    notice()->lower();

    click_item("list_playlist", dance);

    EXPECT_TRUE(look_.visible);
    EXPECT_TRUE(look_.in_front);
    EXPECT_EQ(look_.text, u"csárdás két lassúval.mid fájl lejátszása"_s);
    EXPECT_FALSE(notice()->isVisible());
}

TEST_F(MusicNotice, names_a_file_of_the_folder_too) {
    start();

    click_item("filelist_zene", waltz);

    EXPECT_TRUE(look_.visible);
    EXPECT_EQ(look_.text, u"keringő.mid fájl lejátszása"_s);
    EXPECT_FALSE(notice()->isVisible());
}

TEST_F(MusicNotice, is_written_smaller_for_a_longer_name_and_large_again_for_a_short_one) {
    const QString long_name = QString(70, u'w') + u".mid"_s;
    for (const QSize &pixels : screens) {
        use_screen(pixels);
        start_with({march, long_name, aria});

        click_item("list_playlist", march);
        const Look of_short = look_;
        click_item("list_playlist", long_name);
        const Look of_long = look_;
        click_item("list_playlist", aria);

        EXPECT_LT(of_long.points, of_short.points);
        EXPECT_EQ(look_.points, of_short.points);
        for (const Look &look : {of_short, of_long}) {
            EXPECT_LE(look.text_width, 0.9 * look.width) << look.text.toStdString();
            EXPECT_LE(look.text_height, look.place.height());
            EXPECT_TRUE(notice()->parentWidget()->rect().contains(look.place));
        }
    }
}

TEST_F(MusicNotice, of_a_name_that_fits_in_no_size_stays_within_the_window) {
    const QString name = QString(240, u'W') + u".mid"_s;
    start_with({name});

    click_item("list_playlist", name);

    EXPECT_TRUE(look_.visible);
    EXPECT_GE(look_.points, 6);
    EXPECT_TRUE(notice()->parentWidget()->rect().contains(look_.place));
}

}  // namespace
