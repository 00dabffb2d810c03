#include "exercises/multiple_choice/widgets/multiple_choice_window.h"

#include <QMenu>
#include <QSet>

#include "support/multiple_choice_fixture.h"

using namespace Qt::StringLiterals;

namespace {

using MultipleChoiceWindow = MultipleChoiceTest;

TEST_F(MultipleChoiceWindow, has_every_control_under_its_name_with_its_caption) {
    start();

    EXPECT_EQ(window_->objectName(), u"választás"_s);
    EXPECT_EQ(window_->windowTitle(), u"Zimbora Angol-Magyar Szótár - Választás"_s);
    EXPECT_EQ(label(*window_, "label_felirat"), u"Válaszd ki a megoldást, és helyezd a keretbe!"_s);
    EXPECT_EQ(shown(*window_, "pic_kötőjel"), u"-"_s);
    EXPECT_EQ(control<PictureBox>(*window_, "pic_kötőjel")->palette().color(QPalette::Window), QColor(Qt::cyan));
    EXPECT_EQ(control<QPushButton>(*window_, "cmd_ok")->text(), u"Ok"_s);
    EXPECT_EQ(control<QPushButton>(*window_, "cmd_kilép")->text(), u"Kilép"_s);
    EXPECT_EQ(counter(), u" 1/ 10"_s);
    EXPECT_EQ(candidates(), 5);
    EXPECT_EQ(seen(), u"xxxxx"_s);
    EXPECT_EQ(answer(), QString());
}

TEST_F(MultipleChoiceWindow, has_every_menu_item_under_its_name_with_its_caption) {
    start();

    auto *menu = control<QMenu>(*window_, "mnu_fájl");
    EXPECT_EQ(menu->title(), u"&Fájl"_s);
    QStringList items;
    for (const QAction *one : menu->actions())
        items.append(one->isSeparator() ? u"-"_s : one->objectName() + u' ' + one->text());
    EXPECT_EQ(items, QStringList({u"mnu_fájl_újrakezd &Újrakezd"_s, u"mnu_fájl_beáll &Beállítások"_s, u"-"_s,
                                  u"mnu_fájl_kilép &Kilép"_s}));
}

TEST_F(MultipleChoiceWindow, stacks_the_candidates_a_hundred_and_twenty_twips_apart) {
    start();

    for (int k = 1; k < 5; ++k) {
        const QRectF above = window_->hely(candidate(k - 1));
        EXPECT_NEAR(window_->hely(candidate(k)).top(), above.bottom() + 120, 0.01);
        EXPECT_EQ(window_->hely(candidate(k)).left(), above.left());
        EXPECT_EQ(window_->hely(candidate(k)).size(), above.size());
    }
}

TEST_F(MultipleChoiceWindow, offers_distinct_words_of_the_other_language_with_the_right_one_among_them) {
    start(7);
    QSet<QString> asked;

    for (int i = 0; i < 7; ++i) {
        EXPECT_TRUE(question().startsWith(u"szó"_s));
        const QStringList words = offer();
        EXPECT_EQ(QSet<QString>(words.begin(), words.end()).size(), 5);
        EXPECT_TRUE(words.contains(u"word"_s + question().mid(3)));
        EXPECT_EQ(words.filter(u"word"_s).size(), 5);
        asked.insert(question());
        answer_with(right());
    }

    EXPECT_EQ(asked.size(), 7);
}

TEST_F(MultipleChoiceWindow, asks_and_offers_only_the_first_of_several_meanings_and_cuts_no_english) {
    const QVector<szópár> pairs{{u"deer, roe"_s, u"őz, szarvas"_s}, {u"tree"_s, u"fa,erdő, bot"_s}};
    start(pairs);
    EXPECT_TRUE(question() == u"őz"_s || question() == u"fa"_s);
    EXPECT_TRUE(offer().contains(u"deer, roe"_s));

    store("nyelv", 0);
    start(pairs);
    EXPECT_TRUE(offer().contains(u"őz"_s));
    EXPECT_TRUE(offer().contains(u"fa"_s));
    answer_with(right());
    EXPECT_EQ(counter(), u" 2/ 2"_s);
}

TEST_F(MultipleChoiceWindow, asks_on_when_the_timer_fires_on_a_right_answer) {
    start();
    const QString first = question();
    pick(right());

    timer()->setInterval(1);

    ASSERT_TRUE(QTest::qWaitFor([this] { return counter() == u" 2/ 10"_s; }));
    EXPECT_NE(question(), first);
    EXPECT_EQ(seen(), u"xxxxx"_s);
    EXPECT_EQ(answer(), QString());
    EXPECT_TRUE(frame()->printed_area().isEmpty());
    EXPECT_FALSE(timer()->isActive());
}

TEST_F(MultipleChoiceWindow, puts_a_wrong_answer_back_when_the_timer_fires_and_keeps_the_question) {
    start();
    const QString first = question();
    const QStringList words = offer();
    pick(wrong());

    timer()->setInterval(1);

    ASSERT_TRUE(QTest::qWaitFor([this] { return answer().isEmpty(); }));
    EXPECT_EQ(question(), first);
    EXPECT_EQ(offer(), words);
    EXPECT_EQ(seen(), u"xxxxx"_s);
    EXPECT_EQ(counter(), u" 1/ 10"_s);
    EXPECT_FALSE(timer()->isActive());
    EXPECT_EQ(boxes_.beeps, 0);
    EXPECT_TRUE(messages_.isEmpty());
}

TEST_F(MultipleChoiceWindow, ok_and_enter_check_at_once) {
    start();
    pick(right());
    check();
    EXPECT_EQ(counter(), u" 2/ 10"_s);
    EXPECT_FALSE(timer()->isActive());

    pick(right());
    QTest::keyClick(window_.get(), Qt::Key_Return);
    EXPECT_EQ(counter(), u" 3/ 10"_s);
    EXPECT_FALSE(timer()->isActive());
}

TEST_F(MultipleChoiceWindow, reports_the_result_in_three_lines_and_stays_open) {
    start();

    answer_all_rightly();

    ASSERT_EQ(messages_.size(), 1);
    EXPECT_EQ(messages_[0].milliseconds, 3000);
    EXPECT_EQ(messages_[0].lines, QStringList({u"Gratulálok!"_s, u" "_s, u"Hibaarány:  0%"_s}));
    EXPECT_TRUE(window_->isVisible());
}

TEST_F(MultipleChoiceWindow, counts_a_pair_once_however_often_it_was_answered_wrongly) {
    start();
    for (int i = 0; i < 3; ++i)
        answer_with(wrong());
    check();

    answer_all_rightly();

    EXPECT_EQ(messages_.back().lines.back(), u"Hibaarány:  11%"_s);
}

TEST_F(MultipleChoiceWindow, check_of_the_empty_frame_is_a_wrong_answer) {
    start();

    check();

    EXPECT_EQ(counter(), u" 1/ 10"_s);
    answer_all_rightly();
    EXPECT_EQ(messages_.back().lines.back(), u"Hibaarány:  11%"_s);
}

TEST_F(MultipleChoiceWindow, of_one_pair_offers_it_alone_and_ends_with_nought_or_a_hundred_percent) {
    start(1);
    EXPECT_EQ(candidates(), 1);
    EXPECT_EQ(text(0), u"word0"_s);
    answer_with(0);
    EXPECT_EQ(messages_.back().lines.back(), u"Hibaarány:  0%"_s);

    start(1);
    check();
    answer_with(0);
    EXPECT_EQ(messages_.back().lines.back(), u"Hibaarány:  100%"_s);
}

TEST_F(MultipleChoiceWindow, of_an_empty_list_closes_at_once) {
    load({});

    window_->mutatmodálisan();

    EXPECT_FALSE(window_->isVisible());
    EXPECT_FALSE(window_->windowHandle() && window_->windowHandle()->isVisible());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(messages_.isEmpty());
}

TEST_F(MultipleChoiceWindow, újrakezd_begins_anew_in_the_middle_of_a_game) {
    start();
    answer_with(wrong());
    answer_with(right());
    answer_with(right());
    pick(0);

    trigger("mnu_fájl_újrakezd");

    EXPECT_EQ(counter(), u" 1/ 10"_s);
    EXPECT_EQ(seen(), u"xxxxx"_s);
    EXPECT_EQ(answer(), QString());
    EXPECT_FALSE(timer()->isActive());
    EXPECT_EQ(candidates(), 5);
    answer_all_rightly();
    EXPECT_EQ(messages_.back().lines.back(), u"Hibaarány:  0%"_s);
}

TEST_F(MultipleChoiceWindow, saved_settings_begin_a_new_game_at_once) {
    start();
    answer_with(right());

    in_settings([](választás_beáll &settings) {
        click(settings, "nyelvoptb(0)");
        control<QSlider>(settings, "Slider_választékszám")->setValue(3);
        click(settings, "Opt_megoldástípus(1)");
        click(settings, "cmd_ok");
    });

    EXPECT_EQ(counter(), u" 1/ 10"_s);
    EXPECT_EQ(candidates(), 3);
    EXPECT_TRUE(question().startsWith(u"word"_s));
    pick(0);
    EXPECT_EQ(answer(), QString());
    const QString picked = text(2);
    drag(2, middle_of(frame()));
    EXPECT_EQ(answer(), picked);
}

TEST_F(MultipleChoiceWindow, more_candidates_are_as_good_as_the_first_ones) {
    store("valasztekszam", 2);
    start();
    EXPECT_EQ(candidates(), 2);

    in_settings([](választás_beáll &settings) {
        control<QSlider>(settings, "Slider_választékszám")->setValue(5);
        click(settings, "cmd_ok");
    });

    EXPECT_EQ(candidates(), 5);
    EXPECT_EQ(seen(), u"xxxxx"_s);
    for (int k = 1; k < 5; ++k)
        EXPECT_EQ(candidate(k)->palette().color(QPalette::Window), candidate(0)->palette().color(QPalette::Window));
    candidate(0)->setFocus();
    EXPECT_EQ(tab_order(*window_),
              u"pic_kínálat(0) pic_kínálat(1) pic_kínálat(2) pic_kínálat(3) pic_kínálat(4) cmd_ok "
              "cmd_kilép"_s);
    pick(4);
    EXPECT_EQ(seen(), u"xxxx-"_s);
}

TEST_F(MultipleChoiceWindow, cancelled_settings_leave_the_game_as_it_is) {
    start();
    answer_with(right());
    const QString asked = question();

    in_settings([](választás_beáll &settings) {
        click(settings, "nyelvoptb(0)");
        control<QSlider>(settings, "Slider_választékszám")->setValue(2);
        click(settings, "cmd_mégsem");
    });

    EXPECT_EQ(counter(), u" 2/ 10"_s);
    EXPECT_EQ(question(), asked);
    trigger("mnu_fájl_újrakezd");
    EXPECT_EQ(candidates(), 5);
    EXPECT_TRUE(question().startsWith(u"szó"_s));
}

TEST_F(MultipleChoiceWindow, keeps_its_settings_for_the_next_opening_apart_from_the_quiz) {
    start();
    in_settings([](választás_beáll &settings) {
        click(settings, "nyelvoptb(0)");
        control<QSlider>(settings, "Slider_választékszám")->setValue(4);
        click(settings, "Opt_megoldástípus(1)");
        click(settings, "cmd_ok");
    });
    click(*window_, "cmd_kilép");

    start();

    EXPECT_EQ(candidates(), 4);
    EXPECT_TRUE(question().startsWith(u"word"_s));
    EXPECT_EQ(candidate(0)->drag_mode(), ChoosablePicture::DragMode::automatic);
    EXPECT_EQ(settings_.beállításolvas(ablak(u"kikérdező"_s), u"nyelv"_s, 7), 7);
}

TEST_F(MultipleChoiceWindow, offers_no_more_candidates_than_there_are_pairs) {
    start(3);
    EXPECT_EQ(candidates(), 3);

    in_settings([](választás_beáll &settings) {
        auto *slider = control<QSlider>(settings, "Slider_választékszám");
        EXPECT_EQ(slider->value(), 3);
        slider->setValue(5);
        click(settings, "cmd_ok");
    });

    EXPECT_EQ(candidates(), 3);
    start(2);
    EXPECT_EQ(candidates(), 2);
    const QStringList words = offer();
    EXPECT_EQ(QSet<QString>(words.begin(), words.end()).size(), 2);
}

TEST_F(MultipleChoiceWindow, draws_the_changing_direction_for_every_question) {
    store("nyelv", 2);
    start(40);
    int english = 0;

    for (int i = 0; i < 39; ++i) {
        const bool from_english = question().startsWith(u"word"_s);
        english += from_english ? 1 : 0;
        const QString other = from_english ? u"szó"_s : u"word"_s;
        EXPECT_EQ(offer().filter(other).size(), 5);
        answer_with(right());
    }

    EXPECT_GT(english, 8);
    EXPECT_LT(english, 31);
    EXPECT_EQ(counter(), u" 40/ 40"_s);
}

TEST_F(MultipleChoiceWindow, ends_its_modal_display_with_kilép_escape_menu_and_frame) {
    const std::function<void()> ways[] = {[this] { click(*window_, "cmd_kilép"); },
                                          [this] { QTest::keyClick(window_->focusWidget(), Qt::Key_Escape); },
                                          [this] { trigger("mnu_fájl_kilép"); }, [this] { window_->close(); }};
    for (const auto &leave : ways) {
        load(numbered_pairs(10));
        bool was_open = false;

        show_modally(*window_, [&] {
            was_open = window_->isVisible();
            pick(0);
            leave();
        });

        EXPECT_TRUE(was_open);
        EXPECT_FALSE(window_->isVisible());
        EXPECT_FALSE(timer()->isActive());
        for (const QWidget *left : QApplication::topLevelWidgets())
            EXPECT_NE(left->objectName(), u"választás_beáll"_s);
    }
}

TEST_F(MultipleChoiceWindow, reads_the_list_once_and_leaves_it_alone) {
    start(3);
    const QVector<szópár> before = list_.párok();
    answer_with(wrong());
    answer_all_rightly();
    EXPECT_EQ(list_.párok(), before);

    list_.hozzáfűz({{u"late"_s, u"késő"_s}});
    trigger("mnu_fájl_újrakezd");
    EXPECT_EQ(counter(), u" 1/ 3"_s);
}

TEST_F(MultipleChoiceWindow, takes_nine_tenths_of_the_screen_with_every_caption_whole) {
    for (const QSize &pixels : screens) {
        use_screen(pixels);
        start();

        const double share = std::max(window_->szélesség() / screen_.width(), window_->magasság() / screen_.height());
        EXPECT_NEAR(share, 0.9, 0.03);
        expect_no_overlap(*window_);
        for (const char *name : {"label_felirat", "cmd_ok", "cmd_kilép", "Label_info"})
            expect_whole_caption(*window_, QString::fromUtf8(name));
    }
}

TEST_F(MultipleChoiceWindow, keeps_texts_of_two_hundred_letters_inside_their_places) {
    for (const QSize &pixels : screens) {
        for (const int direction : {0, 1}) {
            use_screen(pixels);
            store("nyelv", direction);
            QVector<szópár> pairs;
            for (int i = 0; i < 5; ++i)
                pairs.append({long_word().replace(0, 1, QString::number(i)),
                              QString::number(i) + long_text().replace(u',', u';').mid(1)});
            start(pairs);
            pick(0);

            expect_text_inside(*window_, u"pic_feladat"_s);
            expect_text_inside(*window_, u"pic_megoldás"_s);
            for (int k = 1; k < 5; ++k)
                expect_text_inside(*window_, u"pic_kínálat(%1)"_s.arg(k));
        }
    }
}

TEST_F(MultipleChoiceWindow, opens_a_list_of_five_thousand_pairs) {
    start(5000);

    EXPECT_EQ(counter(), u" 1/ 5000"_s);
    answer_with(right());
    EXPECT_EQ(counter(), u" 2/ 5000"_s);
    expect_whole_caption(*window_, u"Label_info"_s);
}

}  // namespace
