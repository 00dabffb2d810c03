#include "exercises/memory/widgets/memory_settings_window.h"

#include <QStyleOptionSpinBox>
#include <memory>

#include "support/memory_fixture.h"

using namespace Qt::StringLiterals;

namespace {

/// The settings window alone.
class MemorySettingsWindow : public ExerciseTest {
  protected:
    void load(int pairs = 20) {
        window_ = std::make_unique<frm_memory_beáll>(surroundings(), pairs - 1, [this] {
            ++deals_;
            during_deal_();
        });
    }
    void start(int pairs = 20) {
        load(pairs);
        show(*window_);
    }

    void store(const char *key, const QVariant &value) {
        settings_.beállításment(ablak(u"frm_memory_beáll"_s), QString::fromUtf8(key), value);
    }
    [[nodiscard]] QString stored(const char *key) const {
        return settings_.beállításolvas(*window_, QString::fromUtf8(key), u"nothing"_s).toString();
    }

    [[nodiscard]] QRadioButton *option(int i) const {
        return control<QRadioButton>(*window_, u"Option_méret(%1)"_s.arg(i));
    }
    [[nodiscard]] QSpinBox *spin() const { return control<QSpinBox>(*window_, "UpDown_idő"); }
    [[nodiscard]] QString seconds() const { return label(*window_, "label_idő"); }
    /// A letter for each size: "x" for the selected one, "-" for another, "." for one that cannot be chosen.
    [[nodiscard]] QString sizes() const {
        QString line;
        for (int i = 0; i < 6; ++i)
            line += option(i)->isChecked() ? u'x' : (option(i)->isEnabled() ? u'-' : u'.');
        return line;
    }

    /// Chooses with mouse and keys: the smallest board and 2.3 seconds.
    void choose() {
        click(*window_, "Option_méret(0)");
        for (int i = 0; i < 3; ++i)
            QTest::keyClick(spin(), Qt::Key_Up);
    }

    int deals_ = 0;
    std::function<void()> during_deal_ = [] {};
    std::unique_ptr<frm_memory_beáll> window_;
};

TEST_F(MemorySettingsWindow, has_every_control_under_its_name_with_its_caption) {
    start();

    EXPECT_EQ(window_->objectName(), u"frm_memory_beáll"_s);
    EXPECT_EQ(window_->windowTitle(), u"Zimbora Angol-Magyar Szótár - Memória - Beállítások"_s);
    const char *captions[] = {"6 pár (3*4)",  "8 pár (4*4)",  "10 pár (4*5)",
                              "12 pár (4*6)", "15 pár (5*6)", "18 pár (6*6)"};
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(option(i)->text(), QString::fromUtf8(captions[i]));
    EXPECT_EQ(control<QGroupBox>(*window_, "Frame1")->title(), u"A játéktér mérete"_s);
    EXPECT_EQ(control<QGroupBox>(*window_, "Frame2")->title(), u"Egyéb beállítások"_s);
    EXPECT_EQ(label(*window_, "Label1"), u"A kártyák felfedési ideje"_s);
    EXPECT_EQ(control<QPushButton>(*window_, "cmd_ok")->text(), u"Ok"_s);
    EXPECT_EQ(control<QPushButton>(*window_, "cmd_mégsem")->text(), u"Mégsem"_s);
    EXPECT_TRUE(control<QLabel>(*window_, "label_idő")->autoFillBackground());
    EXPECT_FALSE(spin()->accessibleName().isEmpty());
}

TEST_F(MemorySettingsWindow, begins_with_ten_pairs_and_two_seconds) {
    start();

    EXPECT_EQ(sizes(), u"--x---"_s);
    EXPECT_EQ(window_->méret().kártyák(), 20);
    EXPECT_EQ(window_->felfedésiidő(), 20);
    EXPECT_EQ(seconds(), u"2 mp"_s);
}

TEST_F(MemorySettingsWindow, selects_what_is_stored) {
    const std::pair<int, int> boards[] = {{3, 4}, {4, 4}, {4, 5}, {4, 6}, {5, 6}, {6, 6}};
    store("felfedésiidő", 31);
    for (int i = 0; i < 6; ++i) {
        store("méret", i);
        start();

        EXPECT_TRUE(option(i)->isChecked());
        EXPECT_EQ(window_->méret().oszlopok, boards[i].first);
        EXPECT_EQ(window_->méret().oszlopban, boards[i].second);
        EXPECT_EQ(window_->felfedésiidő(), 31);
        EXPECT_EQ(seconds(), u"3.1 mp"_s);
    }
}

TEST_F(MemorySettingsWindow, counts_the_time_from_one_to_four_seconds_in_tenths) {
    start();
    EXPECT_EQ(spin()->singleStep(), 1);

    for (int i = 0; i < 5; ++i)
        QTest::keyClick(spin(), Qt::Key_Up);
    EXPECT_EQ(seconds(), u"2.5 mp"_s);
    EXPECT_EQ(window_->felfedésiidő(), 25);
    for (int i = 0; i < 20; ++i)
        QTest::keyClick(spin(), Qt::Key_Up);
    EXPECT_EQ(seconds(), u"4 mp"_s);
    for (int i = 0; i < 40; ++i)
        QTest::keyClick(spin(), Qt::Key_Down);
    EXPECT_EQ(seconds(), u"1 mp"_s);
    EXPECT_EQ(window_->felfedésiidő(), 10);
}

TEST_F(MemorySettingsWindow, counts_the_time_with_the_mouse_on_its_arrows) {
    start();
    QStyleOptionSpinBox option;
    option.initFrom(spin());
    option.subControls = QStyle::SC_All;
    const auto middle_of = [&](QStyle::SubControl arrow) {
        return spin()->style()->subControlRect(QStyle::CC_SpinBox, &option, arrow, spin()).center();
    };

    QTest::mouseClick(spin(), Qt::LeftButton, {}, middle_of(QStyle::SC_SpinBoxUp));
    EXPECT_EQ(seconds(), u"2.1 mp"_s);
    QTest::mouseClick(spin(), Qt::LeftButton, {}, middle_of(QStyle::SC_SpinBoxDown));
    QTest::mouseClick(spin(), Qt::LeftButton, {}, middle_of(QStyle::SC_SpinBoxDown));
    EXPECT_EQ(seconds(), u"1.9 mp"_s);
}

TEST_F(MemorySettingsWindow, offers_only_boards_for_which_there_are_pairs) {
    const std::pair<int, QString> all[] = {{7, u"x....."_s},  {8, u"-x...."_s},  {9, u"-x...."_s},  {10, u"--x..."_s},
                                           {11, u"--x..."_s}, {12, u"--x-.."_s}, {14, u"--x-.."_s}, {15, u"--x--."_s},
                                           {17, u"--x--."_s}, {18, u"--x---"_s}, {6, u"x....."_s}};
    for (const auto &[pairs, expected] : all) {
        load(pairs);
        EXPECT_EQ(sizes(), expected) << pairs;
    }
}

TEST_F(MemorySettingsWindow, lowers_a_stored_board_that_is_too_large) {
    store("méret", 5);

    for (const auto &[pairs, cards] : {std::pair{7, 12}, {8, 16}, {11, 20}, {12, 24}, {17, 30}, {18, 36}}) {
        load(pairs);
        EXPECT_EQ(window_->méret().kártyák(), cards) << pairs;
    }
    EXPECT_EQ(stored("méret"), u"5"_s);
}

TEST_F(MemorySettingsWindow, keeps_to_its_defaults_and_ranges_when_what_is_stored_is_nonsense) {
    const std::tuple<QVariant, QVariant, int> all[] = {
        {-1, 9, 10}, {6, 41, 40}, {1000, -5, 10}, {u"nonsense"_s, u"nonsense"_s, 20}, {QString(), QString(), 20}};
    for (const auto &[size, time, expected_time] : all) {
        store("méret", size);
        store("felfedésiidő", time);
        load();

        EXPECT_EQ(sizes(), u"--x---"_s) << size.toString().toStdString();
        EXPECT_EQ(window_->felfedésiidő(), expected_time) << time.toString().toStdString();
    }
}

TEST_F(MemorySettingsWindow, ok_stores_closes_and_then_deals) {
    start();
    choose();
    during_deal_ = [this] {
        EXPECT_EQ(stored("méret"), u"0"_s);
        EXPECT_EQ(stored("felfedésiidő"), u"23"_s);
        EXPECT_EQ(window_->méret().kártyák(), 12);
        EXPECT_FALSE(window_->isVisible());
    };

    click(*window_, "cmd_ok");

    EXPECT_EQ(deals_, 1);
    load();
    EXPECT_EQ(sizes(), u"x-----"_s);
    EXPECT_EQ(window_->felfedésiidő(), 23);
}

TEST_F(MemorySettingsWindow, enter_stores_closes_and_deals) {
    start();

    QTest::keyClick(spin(), Qt::Key_Return);

    EXPECT_EQ(deals_, 1);
    EXPECT_EQ(stored("méret"), u"2"_s);
    EXPECT_EQ(stored("felfedésiidő"), u"20"_s);
    EXPECT_FALSE(window_->isVisible());
}

TEST_F(MemorySettingsWindow, mégsem_escape_and_the_frame_bring_back_what_was_stored) {
    const std::function<void()> ways[] = {[this] { click(*window_, "cmd_mégsem"); },
                                          [this] { QTest::keyClick(spin(), Qt::Key_Escape); },
                                          [this] { window_->close(); }};
    store("méret", 4);
    store("felfedésiidő", 33);
    for (const auto &leave : ways) {
        load();
        show_modally(*window_, [&] {
            choose();
            EXPECT_EQ(sizes(), u"x-----"_s);
            leave();
        });

        EXPECT_EQ(sizes(), u"----x-"_s);
        EXPECT_EQ(window_->felfedésiidő(), 33);
        EXPECT_EQ(seconds(), u"3.3 mp"_s);
        EXPECT_EQ(stored("méret"), u"4"_s);
        EXPECT_EQ(stored("felfedésiidő"), u"33"_s);
    }
    EXPECT_EQ(deals_, 0);
}

TEST_F(MemorySettingsWindow, shows_every_caption_whole_and_apart) {
    for (const QSize &pixels : screens) {
        use_screen(pixels);
        start();

        expect_no_overlap(*window_);
        for (int i = 0; i < 6; ++i) {
            expect_whole_caption(*window_, option(i)->objectName());
            EXPECT_TRUE(window_->hely(control<QWidget>(*window_, "Frame1")).contains(window_->hely(option(i))));
        }
        for (const char *name : {"Label1", "label_idő", "cmd_ok", "cmd_mégsem"})
            expect_whole_caption(*window_, QString::fromUtf8(name));
        for (const char *name : {"Label1", "UpDown_idő", "label_idő"})
            EXPECT_TRUE(window_->hely(control<QWidget>(*window_, "Frame2"))
                            .contains(window_->hely(control<QWidget>(*window_, name))));
        EXPECT_LE(window_->width(), pixels.width());
        EXPECT_LE(window_->height(), pixels.height());
    }
}

TEST_F(MemorySettingsWindow, is_reached_by_tab_from_control_to_control) {
    start();
    option(2)->setFocus();

    EXPECT_EQ(tab_order(*window_), u"Option_méret(2) UpDown_idő cmd_ok cmd_mégsem"_s);
}

/// The settings window of a game.
class MemorySettings : public MemoryTest {
  protected:
    void choose_board(int size) {
        in_settings([&](frm_memory_beáll &settings) {
            EXPECT_EQ(settings.windowModality(), Qt::ApplicationModal);
            click(settings, qUtf8Printable(u"Option_méret(%1)"_s.arg(size)));
            click(settings, "cmd_ok");
        });
    }
};

TEST_F(MemorySettings, of_the_same_board_deal_anew_on_the_cards_that_lie) {
    start();
    const QVector<ChoosablePicture *> before = cards();
    const QVector<QRect> lying = places();
    const QStringList dealt = texts();
    click_card(3);

    choose_board(2);

    EXPECT_EQ(cards(), before);
    EXPECT_EQ(places(), lying);
    EXPECT_NE(texts(), dealt);
    EXPECT_EQ(board(), QString(20, u'.'));
    EXPECT_EQ(progress(), u"0/10"_s);
}

TEST_F(MemorySettings, of_another_board_lay_it_out_and_deal) {
    start();
    for (const auto &[size, columns, in_column] : {std::tuple{5, 6, 6}, {0, 3, 4}, {3, 4, 6}, {1, 4, 4}, {4, 5, 6}}) {
        find_a_pair();

        choose_board(size);

        ASSERT_EQ(cards().size(), columns * in_column);
        EXPECT_EQ(board(), QString(columns * in_column, u'.'));
        EXPECT_EQ(progress(), u"0/%1"_s.arg(columns * in_column / 2));
        EXPECT_EQ(window_->windowTitle(), u"Zimbora Angol-Magyar Szótár - Memória"_s);
        EXPECT_EQ(label(*window_, "Label_feladat"), u"Keresd meg az összetartozó párokat!"_s);
        expect_no_overlap(*window_);
        expect_whole_caption(*window_, u"Label_feladat"_s);
        expect_whole_caption(*window_, u"Label_info"_s);
        const double share = std::max(window_->szélesség() / screen_.width(), window_->magasság() / screen_.height());
        EXPECT_NEAR(share, 0.9, 0.03);
        EXPECT_EQ(focused_card(), 0);
        for (const ChoosablePicture *one : cards())
            EXPECT_NEAR(one->width(), card(0)->width(), 1);
    }
}

TEST_F(MemorySettings, of_another_board_leave_no_difference_to_one_that_was_there_from_the_start) {
    store("méret", 5);
    start();
    const QVector<QRect> expected = places();
    const QSize size = window_->size();
    store("méret", 0);
    start();

    choose_board(5);

    EXPECT_EQ(places(), expected);
    EXPECT_EQ(window_->size(), size);
    EXPECT_TRUE(
        tab_order(*window_).startsWith(u"pic_kártya(0) pic_kártya(1) pic_kártya(2) pic_kártya(3) pic_kártya(4)"_s));
    find_all_pairs();
    EXPECT_EQ(messages_.size(), 1);
}

TEST_F(MemorySettings, cancelled_leave_the_game_as_it_is) {
    start();
    find_a_pair();
    const auto turned = static_cast<int>(board().indexOf(u'.'));
    click_card(turned);
    const QString before = board();

    in_settings([](frm_memory_beáll &settings) {
        click(settings, "Option_méret(0)");
        click(settings, "cmd_mégsem");
    });

    EXPECT_EQ(board(), before);
    EXPECT_EQ(progress(), u"1/10"_s);
    trigger("mnu_fájl_újjáték");
    EXPECT_EQ(cards().size(), 20);
}

TEST_F(MemorySettings, are_kept_for_the_next_opening) {
    start();
    in_settings([](frm_memory_beáll &settings) {
        click(settings, "Option_méret(3)");
        control<QSpinBox>(settings, "UpDown_idő")->setValue(12);
        click(settings, "cmd_ok");
    });
    press_key(Qt::Key_Escape);

    start();

    EXPECT_EQ(cards().size(), 24);
    turn(0, stranger({0}));
    EXPECT_EQ(cover_timer()->interval(), 1200);
}

TEST_F(MemorySettings, offer_only_boards_for_which_the_game_has_pairs) {
    start(9);
    EXPECT_EQ(cards().size(), 16);

    in_settings([](frm_memory_beáll &settings) {
        EXPECT_TRUE(control<QRadioButton>(settings, "Option_méret(1)")->isEnabled());
        EXPECT_FALSE(control<QRadioButton>(settings, "Option_méret(2)")->isEnabled());
        click(settings, "Option_méret(2)");
        click(settings, "cmd_ok");
    });

    EXPECT_EQ(cards().size(), 16);
}

}  // namespace
