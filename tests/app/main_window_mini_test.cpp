#include <QTimer>

#include "support/main_window_fixture.h"
#include "support/odd_files.h"
#include "support/timers.h"

using namespace Qt::StringLiterals;

namespace {

/// The main window and the mini window, which take turns. The main window stands in the middle of the screen.
class MainWindowMini : public MainWindowTest {
  protected:
    ~MainWindowMini() override {
        // The mini window tells nothing when it goes with the program.
        if (window_)
            window_->kilép_Click();
        window_.reset();
    }

    [[nodiscard]] static frm_kisablak *mini() {
        for (QWidget *window : QApplication::topLevelWidgets()) {
            if (window->objectName() == u"frm_kisablak")
                return dynamic_cast<frm_kisablak *>(window);
        }
        return nullptr;
    }

    template <class Control>
    [[nodiscard]] static Control *mini_control(const char *name) {
        return mini()->findChild<Control *>(QString::fromUtf8(name));
    }
    static void mini_click(const char *name) { QTest::mouseClick(mini_control<QWidget>(name), Qt::LeftButton); }
    static void mini_type(const char *text) {
        QTest::keyClicks(mini_control<QLineEdit>("txt_keres"), QString::fromUtf8(text));
    }
    [[nodiscard]] static QStringList mini_items(const char *name) { return mini_control<ListBox>(name)->items(); }

    void copy(const char *text) {
        clipboard_.put(QString::fromUtf8(text));
        expire(*mini_control<QTimer>("Timer1"));
    }

    [[nodiscard]] static bool mini_window_goes() {
        return QTest::qWaitFor([] { return mini() == nullptr; });
    }

    void keep_in_file(const QByteArray &values) {
        QDir(root_.path()).mkpath(u"c/zbrmk/angol"_s);
        write_file(place("c/zbrmk/angol/kisablak.ini"), values);
    }
    [[nodiscard]] QByteArray file() const { return read_file(place("c/zbrmk/angol/kisablak.ini")); }
};

TEST_F(MainWindowMini, gives_place_to_the_mini_window_by_its_button) {
    start();

    click("cmd_kisablak");

    EXPECT_FALSE(window_->isVisible());
    ASSERT_NE(mini(), nullptr);
    EXPECT_TRUE(mini()->isVisible());
    EXPECT_EQ(state_.kisablakmód, 1);
    EXPECT_EQ(glide_steps_, 100);
    EXPECT_EQ(mini()->pos(), QPoint(512, 384));
}

TEST_F(MainWindowMini, sends_the_mini_window_out_of_its_own_middle) {
    start();
    const QPointF middle = QPointF(window_->pos()) * 15 + QPointF(window_->szélesség(), window_->magasság()) / 2;
    QPoint first;
    between_glide_steps_ = [&] {
        if (glide_steps_ == 1)
            first = mini()->pos();
    };

    click("cmd_kisablak");

    const QPointF from = middle - QPointF(mini()->szélesség(), mini()->magasság()) / 2;
    const QPointF after_one_step = from + (QPointF(state_.kisablakbal, state_.kisablakfent) - from) / 100;
    EXPECT_EQ(first, (after_one_step / 15).toPoint());
}

TEST_F(MainWindowMini, makes_the_file_of_the_mini_window_so_that_the_exit_writes_it) {
    start();

    click("cmd_kisablak");
    EXPECT_EQ(file(), "");
    mini_click("cmd_x");

    EXPECT_TRUE(ended_);
    EXPECT_EQ(file(), " 7680 \r\n 5760 \r\n 1 \r\n");
}

TEST_F(MainWindowMini, leaves_a_file_of_the_mini_window_alone_until_the_exit) {
    keep_in_file(" 3000 \r\n 1500 \r\n 0 \r\n");
    start();

    click("cmd_kisablak");
    EXPECT_EQ(file(), " 3000 \r\n 1500 \r\n 0 \r\n");
    EXPECT_EQ(mini()->pos(), QPoint(200, 100));
    mini_click("cmd_x");

    EXPECT_EQ(file(), " 3000 \r\n 1500 \r\n 1 \r\n");
}

TEST_F(MainWindowMini, makes_no_file_for_the_mini_window_without_opening_it) {
    start();

    click("kilép");

    EXPECT_FALSE(QFile::exists(place("c/zbrmk")));
}

TEST_F(MainWindowMini, keeps_the_place_off_every_screen_that_the_file_names) {
    keep_in_file("-90000 \r\n 99999 \r\n 1 \r\n");
    start();
    EXPECT_TRUE(screen_.contains(QRectF(QPointF(mini()->pos()) * 15, QSizeF(mini()->size()) * 15)));

    mini_click("cmd_x");

    EXPECT_EQ(file(), "-90000 \r\n 99999 \r\n 1 \r\n");
}

TEST_F(MainWindowMini, opens_the_mini_window_in_its_place_at_the_start_when_it_was_left_so) {
    keep_in_file(" 3000 \r\n 1500 \r\n 1 \r\n");

    load();

    ASSERT_NE(mini(), nullptr);
    EXPECT_TRUE(mini()->isVisible());
    EXPECT_EQ(mini()->pos(), QPoint(200, 100));
    EXPECT_FALSE(window_->isVisible());
}

TEST_F(MainWindowMini, tells_once_that_its_file_cannot_be_read) {
    QDir(place("c")).mkpath(u"zbrmk/angol"_s);
    const UnreadableFile file(place("c/zbrmk/angol/kisablak.ini"));

    start();
    click("cmd_kisablak");

    ASSERT_EQ(boxes_.told.size(), 1);
    EXPECT_TRUE(boxes_.told[0].contains(u"kisablak.ini” fájl nem olvasható"_s)) << boxes_.told[0].toStdString();
    EXPECT_EQ(state_.kisablakmód, 1);
}

TEST_F(MainWindowMini, opens_no_mini_window_at_the_start_for_any_other_mode) {
    keep_in_file(" 3000 \r\n 1500 \r\n 2 \r\n");

    load();

    EXPECT_EQ(mini(), nullptr);
}

TEST_F(MainWindowMini, opens_the_list_of_the_command_line_behind_the_mini_window) {
    keep_in_file(" 3000 \r\n 1500 \r\n 1 \r\n");

    load(word_list("gyumi.szs", "apple:alma\r\n"));

    EXPECT_TRUE(mini()->isVisible());
    EXPECT_EQ(pairs(), u"apple:alma"_s);
}

TEST_F(MainWindowMini, comes_back_centred_on_the_mini_window) {
    // Small enough to stand round it in the middle of a large screen.
    screen_ = QRectF(0, 0, 100000, 100000);
    keep_in_file(" 48000 \r\n 42000 \r\n 0 \r\n");
    start();
    window_->méretez(20000, 9000);
    click("cmd_kisablak");
    const QPointF middle(48000 + mini()->szélesség() / 2, 42000 + mini()->magasság() / 2);

    mini_click("cmd_kilép");

    EXPECT_TRUE(window_->isVisible());
    EXPECT_EQ(window_->pos(), QPoint(qRound((middle.x() - 10000) / 15), qRound((middle.y() - 4500) / 15)));
    EXPECT_EQ(state_.kisablakmód, 0);
}

TEST_F(MainWindowMini, comes_back_whole_on_the_screen_from_a_mini_window_in_a_corner) {
    start();
    click("cmd_kisablak");
    for (int corner = 0; corner < 4; ++corner) {
        for (int step = 0; step <= corner; ++step)
            QTest::keyClick(mini(), Qt::Key_F2);

        mini_click("cmd_kilép");

        const QRectF place(QPointF(window_->pos()) * 15, QSizeF(window_->szélesség(), window_->magasság()));
        EXPECT_TRUE(screen_.adjusted(-15, -15, 15, 15).contains(place)) << corner;
        ASSERT_TRUE(mini_window_goes());
        click("cmd_kisablak");
    }
}

TEST_F(MainWindowMini, unloads_the_mini_window_that_it_comes_back_for) {
    start();
    click("cmd_kisablak");

    mini_click("cmd_kilép");

    EXPECT_TRUE(mini_window_goes());
    EXPECT_EQ(boxes_.told, QStringList{u"Elveszett"_s});
    EXPECT_EQ(clipboard_.watches, 0);
    EXPECT_EQ(state_.kisablakbal, 7680);
    EXPECT_EQ(state_.kisablakfent, 5760);
}

TEST_F(MainWindowMini, opens_a_new_mini_window_after_the_last_one_has_gone) {
    start();
    click("cmd_kisablak");
    mini_type("app");
    mini_click("cmd_kilép");
    ASSERT_TRUE(mini_window_goes());

    click("cmd_kisablak");

    EXPECT_TRUE(mini()->isVisible());
    EXPECT_EQ(mini_control<QLineEdit>("txt_keres")->text(), QString());
    EXPECT_EQ(state_.kisablakmód, 1);
    EXPECT_FALSE(window_->isVisible());
}

TEST_F(MainWindowMini, looks_words_up_for_the_mini_window) {
    start();
    click("cmd_kisablak");

    mini_type("apple");

    EXPECT_EQ(text_box("angolszó")->text(), u"apple"_s);
    EXPECT_EQ(mini_items("lst_találatlista"), QStringList({u"apple pie"_s, u"apple"_s}));
    EXPECT_EQ(mini_control<ListBox>("lst_találatlista")->selected(), 1);
    EXPECT_EQ(mini_items("lst_translate"), QStringList({u"alma"_s, u"almafa"_s}));
}

TEST_F(MainWindowMini, looks_up_in_the_direction_that_is_chosen) {
    start();
    QTest::mouseClick(control<QRadioButton>("nyelv(1)"), Qt::LeftButton);
    click("cmd_kisablak");

    mini_type("megy");

    EXPECT_EQ(mini_control<QLabel>("label_fejléc")->text(), u"Zimbora Magyar-angol szótár"_s);
    EXPECT_EQ(mini_items("lst_translate"), QStringList({u"to go"_s, u"to walk"_s}));
}

TEST_F(MainWindowMini, looks_up_what_another_program_copies_shortened_to_what_is_found) {
    start();
    click("cmd_kisablak");

    copy(" Applesauce ");

    EXPECT_EQ(mini_control<QLineEdit>("txt_keres")->text(), u"apple"_s);
    EXPECT_EQ(mini_items("lst_találatlista"), QStringList({u"apple pie"_s, u"apple"_s}));
}

TEST_F(MainWindowMini, ends_the_shortening_of_a_word_that_nothing_begins_like) {
    start();
    click("cmd_kisablak");
    mini_type("apple");

    copy("qqqq");

    EXPECT_EQ(mini_control<QLineEdit>("txt_keres")->text(), QString());
    EXPECT_TRUE(mini_items("lst_találatlista").isEmpty());
    EXPECT_TRUE(mini_items("lst_translate").isEmpty());
}

TEST_F(MainWindowMini, adds_the_chosen_pair_for_the_mini_window) {
    start();
    click("cmd_kisablak");
    mini_type("apple");
    mini_control<ListBox>("lst_translate")->select(1);

    mini_click("cmd_szószedethez_ad");

    EXPECT_EQ(pairs(), u"apple:almafa"_s);
    EXPECT_EQ(boxes_.beeps, 1);
    EXPECT_FALSE(window_->isVisible());
}

TEST_F(MainWindowMini, adds_the_meaning_that_is_double_clicked_in_the_mini_window) {
    start();
    click("cmd_kisablak");
    mini_type("apple");
    auto *meanings = mini_control<ListBox>("lst_translate");
    const QPoint second = meanings->visualRect(meanings->model()->index(1, 0)).center();

    QTest::mouseClick(meanings->viewport(), Qt::LeftButton, {}, second);
    QTest::mouseDClick(meanings->viewport(), Qt::LeftButton, {}, second);

    EXPECT_EQ(pairs(), u"apple:almafa"_s);
}

TEST_F(MainWindowMini, asks_about_unsaved_changes_when_the_program_is_left_from_the_mini_window) {
    start();
    type("apple");
    click("hozzáad");
    click("cmd_kisablak");
    boxes_.answers = {Answer::cancel, Answer::no};

    mini_click("cmd_x");
    EXPECT_EQ(boxes_.asked, QStringList{u"Kilépés|Akarja menteni a változtatásokat?|yes no cancel"_s});
    EXPECT_FALSE(ended_);
    EXPECT_TRUE(mini()->isVisible());
    EXPECT_FALSE(window_->isVisible());

    QTest::keyClick(mini(), Qt::Key_F4, Qt::AltModifier);
    EXPECT_TRUE(ended_);
    EXPECT_FALSE(mini()->isVisible());
}

TEST_F(MainWindowMini, ends_with_the_mini_window_without_telling_that_it_is_lost) {
    start();
    click("cmd_kisablak");
    mini_click("cmd_x");

    window_.reset();

    EXPECT_EQ(mini(), nullptr);
    EXPECT_TRUE(boxes_.told.isEmpty());
}

TEST_F(MainWindowMini, says_where_the_file_of_the_mini_window_cannot_be_written_and_ends) {
    start();
    click("cmd_kisablak");
    QFile::remove(place("c/zbrmk/angol/kisablak.ini"));
    QDir(root_.path()).mkpath(u"c/zbrmk/angol/kisablak.ini"_s);
    write_file(place("c/zbrmk/angol/other"), "x");

    mini_click("cmd_x");

    ASSERT_EQ(boxes_.told.size(), 1);
    EXPECT_TRUE(boxes_.told[0].contains(u"kisablak.ini"_s)) << boxes_.told[0].toStdString();
    EXPECT_TRUE(ended_);
}

/// A dictionary in which a search takes long enough for other events to come in between.
class MainWindowMiniLongSearch : public MainWindowMini {
  protected:
    MainWindowMiniLongSearch() {
        QByteArrayList entries;
        for (int i = 0; i < 120000; ++i)
            entries.append("g" + QByteArray::number(i) + ":x\xf7");
        write_file(place("angol/am.txt"), dictionary_of(entries));
        start();
        click("cmd_kisablak");
    }

    /// Notes whether `act` was called in the midst of a search.
    void in_the_midst(const std::function<void()> &act) {
        QTimer::singleShot(0, window_.get(), [this, act] {
            interrupted_ = mini()->foglalt();
            act();
        });
    }

    bool interrupted_ = false;
};

TEST_F(MainWindowMiniLongSearch, comes_back_in_the_midst_of_a_search_of_the_mini_window) {
    in_the_midst([] { mini_click("cmd_kilép"); });

    mini_type("g");

    EXPECT_TRUE(interrupted_);
    EXPECT_TRUE(window_->isVisible());
    EXPECT_TRUE(mini_window_goes());
    EXPECT_EQ(boxes_.told, QStringList{u"Elveszett"_s});
    EXPECT_EQ(list("szólist")->count(), 120000);
}

TEST_F(MainWindowMiniLongSearch, comes_back_in_the_midst_of_the_search_for_a_copied_word) {
    in_the_midst([] { mini_click("cmd_kilép"); });

    copy("g");

    EXPECT_TRUE(interrupted_);
    EXPECT_TRUE(window_->isVisible());
    EXPECT_TRUE(mini_window_goes());
    EXPECT_EQ(boxes_.told, QStringList{u"Elveszett"_s});
}

TEST_F(MainWindowMiniLongSearch, ends_the_program_in_the_midst_of_a_search_of_the_mini_window) {
    in_the_midst([] { mini_click("cmd_x"); });

    mini_type("g");

    EXPECT_TRUE(interrupted_);
    EXPECT_TRUE(ended_);
    EXPECT_LT(list("szólist")->count(), 120000);
    EXPECT_TRUE(boxes_.told.isEmpty());
}

TEST_F(MainWindowMiniLongSearch, comes_back_in_the_midst_of_a_glide) {
    between_glide_steps_ = [this] {
        if (glide_steps_ == 150)
            mini_click("cmd_kilép");
    };

    QTest::keyClick(mini(), Qt::Key_F2);

    EXPECT_EQ(glide_steps_, 150);
    EXPECT_TRUE(window_->isVisible());
    EXPECT_TRUE(mini_window_goes());
}

}  // namespace
