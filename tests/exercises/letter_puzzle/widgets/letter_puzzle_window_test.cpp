#include "exercises/letter_puzzle/widgets/letter_puzzle_window.h"

#include <QSet>

#include "support/letter_puzzle_fixture.h"

using namespace Qt::StringLiterals;

namespace {

using LetterPuzzleWindow = LetterPuzzleTest;

TEST_F(LetterPuzzleWindow, has_every_control_under_its_name_with_its_caption) {
    start(10);

    EXPECT_EQ(window_->objectName(), u"frm_kirakó"_s);
    EXPECT_EQ(window_->windowTitle(), u"Zimbora Angol-Magyar Szótár - Kirakó"_s);
    EXPECT_EQ(label(*window_, "Label_főcím"), u"Rakd ki a szót az összekevert betűkből!"_s);
    EXPECT_EQ(control<QPushButton>(*window_, "cmd_ok")->text(), u"Ok"_s);
    EXPECT_EQ(counter(), u" 1/ 10"_s);
    EXPECT_TRUE(question().startsWith(u"szó"_s));
    EXPECT_EQ(tiles().size(), 5);
    for (const LetterTile *one : tiles())
        EXPECT_TRUE(one->isVisible());
}

TEST_F(LetterPuzzleWindow, has_every_menu_item_under_its_name_with_its_caption) {
    start(2);

    EXPECT_EQ(control<QMenu>(*window_, "mnu_fájl")->title(), u"&Fájl"_s);
    EXPECT_EQ(menu_items(), QStringList({u"mnu_fájl_újrakezd &Újrakezd"_s, u"mnu_fájl_beáll &Beállítások"_s,
                                         u"mnu_fájl_elválaszt"_s, u"mnu_fájl_kilép &Kilép"_s}));
}

TEST_F(LetterPuzzleWindow, has_a_tile_for_each_hungarian_letter_of_a_hungarian_answer) {
    store("nyelv", 0);
    start(grape);

    EXPECT_EQ(question(), u"grape"_s);
    EXPECT_EQ(answer(), u"sz ő l ő"_s);
}

TEST_F(LetterPuzzleWindow, has_a_tile_for_each_character_of_an_english_answer) {
    start({{u"ship"_s, u"hajó"_s}});

    EXPECT_EQ(question(), u"hajó"_s);
    EXPECT_EQ(answer(), u"s h i p"_s);
}

TEST_F(LetterPuzzleWindow, has_a_tile_for_the_blank_between_two_words_of_the_answer) {
    start({{u"to go"_s, u"elindul valahová"_s}});

    EXPECT_EQ(question(), u"elindul valahová"_s);
    EXPECT_EQ(answer(), u"t o _ g o"_s);
}

TEST_F(LetterPuzzleWindow, is_right_only_with_the_blank_in_its_place) {
    start({{u"to go"_s, u"elindul"_s}});

    lay_out({2, 0, 1, 3, 4});
    check();
    EXPECT_EQ(messages_.back().lines, wrong_message);

    answer_rightly();
    EXPECT_EQ(messages_.back().lines, QStringList(u"to go - elindul"_s));
    EXPECT_FALSE(window_->isVisible());
}

TEST_F(LetterPuzzleWindow, is_right_with_equal_letters_exchanged) {
    store("nyelv", 0);
    start(grape);

    lay_out({0, 3, 2, 1});
    check();

    EXPECT_EQ(messages_.back().lines, QStringList(u"grape - szőlő"_s));
}

TEST_F(LetterPuzzleWindow, tells_the_language_of_the_answer) {
    start(grape);
    EXPECT_EQ(label(*window_, "Label1"), u"Angolul:"_s);

    store("nyelv", 0);
    start(grape);
    EXPECT_EQ(label(*window_, "Label1"), u"Magyarul:"_s);
}

TEST_F(LetterPuzzleWindow, reports_a_right_answer_with_its_pair_and_asks_on) {
    start(10);
    const QString asked = question();
    during_message_ = [&] {
        EXPECT_EQ(question(), asked);
        EXPECT_TRUE(closed_up());
        EXPECT_EQ(row(), answer());
    };

    answer_rightly();

    ASSERT_EQ(messages_.size(), 1);
    EXPECT_EQ(messages_[0].milliseconds, 2000);
    EXPECT_EQ(messages_[0].lines, QStringList(u"word%1 - szó%1"_s.arg(asked.mid(3))));
    EXPECT_EQ(counter(), u" 2/ 10"_s);
    EXPECT_NE(question(), asked);
    EXPECT_EQ(answer(), u"w o r d "_s + question().mid(3));
}

TEST_F(LetterPuzzleWindow, reports_english_first_whichever_side_is_asked) {
    store("nyelv", 0);
    start(grape);

    answer_rightly();

    EXPECT_EQ(messages_[0].lines, QStringList(u"grape - szőlő"_s));
}

TEST_F(LetterPuzzleWindow, reports_a_wrong_answer_and_keeps_the_word_as_it_was_laid) {
    start(10);
    const QString asked = question();

    answer_wrongly();

    ASSERT_EQ(messages_.size(), 1);
    EXPECT_EQ(messages_[0].milliseconds, 2000);
    EXPECT_EQ(messages_[0].lines, wrong_message);
    EXPECT_EQ(question(), asked);
    EXPECT_EQ(counter(), u" 1/ 10"_s);
    EXPECT_TRUE(closed_up());
    EXPECT_EQ(row(), asked.mid(3) + u" d r o w"_s);
    EXPECT_TRUE(window_->isVisible());
}

TEST_F(LetterPuzzleWindow, does_not_ask_a_failed_word_again) {
    start(3);
    QSet<QString> asked;

    for (int i = 0; i < 3; ++i) {
        asked.insert(question());
        answer_wrongly();
        answer_rightly();
    }

    EXPECT_EQ(asked.size(), 3);
    EXPECT_FALSE(window_->isVisible());
}

TEST_F(LetterPuzzleWindow, closes_after_the_last_word_without_another_message) {
    start(3);
    QSet<QString> asked;

    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(window_->isVisible());
        EXPECT_EQ(counter(), u" %1/ 3"_s.arg(i + 1));
        asked.insert(question());
        answer_rightly();
    }

    EXPECT_FALSE(window_->isVisible());
    EXPECT_EQ(asked.size(), 3);
    EXPECT_EQ(messages_.size(), 3);
}

TEST_F(LetterPuzzleWindow, ends_its_modal_display_after_the_last_word) {
    load(grape);
    bool was_open = false;

    show_modally(*window_, [&] {
        was_open = window_->isVisible();
        answer_rightly();
    });

    EXPECT_TRUE(was_open);
    EXPECT_EQ(messages_.size(), 1);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(LetterPuzzleWindow, does_not_ask_on_when_it_was_closed_during_the_message) {
    start(3);
    const QString asked = question();
    during_message_ = [this] { window_->close(); };

    answer_rightly();

    EXPECT_FALSE(window_->isVisible());
    EXPECT_EQ(question(), asked);
    EXPECT_EQ(counter(), u" 1/ 3"_s);
}

TEST_F(LetterPuzzleWindow, újrakezd_begins_anew_in_the_middle_of_a_game) {
    start(3);
    answer_rightly();
    answer_rightly();
    EXPECT_EQ(counter(), u" 3/ 3"_s);

    trigger("mnu_fájl_újrakezd");

    EXPECT_EQ(counter(), u" 1/ 3"_s);
    messages_.clear();
    for (int i = 0; i < 3; ++i)
        answer_rightly();
    EXPECT_EQ(messages_.size(), 3);
    EXPECT_FALSE(window_->isVisible());
}

TEST_F(LetterPuzzleWindow, uses_a_saved_direction_from_the_next_word_on) {
    start(3);
    const QString asked = question();
    const QVector<QRect> lying = places();

    in_settings([](frm_kirakó_beáll &settings) {
        EXPECT_EQ(settings.windowModality(), Qt::ApplicationModal);
        click(settings, "nyelvoptb(0)");
        click(settings, "cmd_ok");
    });

    EXPECT_EQ(question(), asked);
    EXPECT_EQ(counter(), u" 1/ 3"_s);
    EXPECT_EQ(places(), lying);
    answer_rightly();
    EXPECT_TRUE(question().startsWith(u"word"_s));
    EXPECT_TRUE(answer().startsWith(u"sz ó "_s));
    EXPECT_EQ(label(*window_, "Label1"), u"Magyarul:"_s);
}

TEST_F(LetterPuzzleWindow, goes_on_as_before_when_the_settings_are_cancelled) {
    start(3);

    in_settings([](frm_kirakó_beáll &settings) {
        click(settings, "nyelvoptb(0)");
        click(settings, "cmd_mégsem");
    });

    answer_rightly();
    EXPECT_TRUE(question().startsWith(u"szó"_s));
}

TEST_F(LetterPuzzleWindow, keeps_its_settings_for_the_next_opening_apart_from_the_other_exercises) {
    start(3);
    in_settings([](frm_kirakó_beáll &settings) {
        click(settings, "nyelvoptb(0)");
        click(settings, "cmd_ok");
    });
    trigger("mnu_fájl_kilép");

    start(3);

    EXPECT_TRUE(question().startsWith(u"word"_s));
    EXPECT_EQ(settings_.beállításolvas(ablak(u"választás_beáll"_s), u"nyelv"_s, 7), 7);
}

TEST_F(LetterPuzzleWindow, draws_the_changing_direction_for_every_word) {
    store("nyelv", 2);
    start(40);
    int english = 0;

    for (int i = 0; i < 40; ++i) {
        const bool from_english = question().startsWith(u"word"_s);
        english += from_english ? 1 : 0;
        EXPECT_EQ(answer().startsWith(u"sz ó "_s), from_english);
        EXPECT_EQ(label(*window_, "Label1"), from_english ? u"Magyarul:"_s : u"Angolul:"_s);
        answer_rightly();
    }

    EXPECT_GT(english, 8);
    EXPECT_LT(english, 31);
    EXPECT_FALSE(window_->isVisible());
}

TEST_F(LetterPuzzleWindow, passes_pairs_over_that_lack_a_side) {
    start({{u"nothing"_s, QString()}, {u"grape"_s, u"szőlő"_s}, {QString(), u"semmi"_s}});

    EXPECT_EQ(question(), u"szőlő"_s);
    answer_rightly();

    EXPECT_FALSE(window_->isVisible());
    EXPECT_EQ(messages_.size(), 1);
}

TEST_F(LetterPuzzleWindow, closes_at_once_and_says_why_when_no_pair_has_both_sides) {
    const QVector<szópár> lists[] = {{{u"nothing"_s, QString()}, {QString(), u"semmi"_s}}, {}};
    for (const QVector<szópár> &pairs : lists) {
        messages_.clear();
        load(pairs);

        window_->mutatmodálisan();

        EXPECT_FALSE(window_->isVisible());
        EXPECT_FALSE(window_->windowHandle() && window_->windowHandle()->isVisible());
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
        ASSERT_EQ(messages_.size(), pairs.isEmpty() ? 0 : 1);
    }
    load(lists[0]);
    EXPECT_EQ(messages_.back().lines, QStringList({u"Sajnos ehhez a játékhoz"_s, u"olyan szópár kell,"_s,
                                                   u"amelynek mindkét oldala megvan!"_s}));
}

TEST_F(LetterPuzzleWindow, passes_answers_over_that_are_too_long_and_tells_so) {
    start({{QString(30000, u'x'), u"hosszú"_s}, {QString(201, u'y'), u"ez is"_s}, {u"grape"_s, u"szőlő"_s}});

    EXPECT_EQ(question(), u"szőlő"_s);
    answer_rightly();

    EXPECT_FALSE(window_->isVisible());
    int passed_over = 0;
    for (const Message &one : messages_) {
        if (one.lines.front() == u"Egy szó kimaradt,"_s)
            ++passed_over;
        if (one.lines.front() == u"2 szó kimaradt,"_s)
            passed_over += 2;
    }
    EXPECT_EQ(passed_over, 2);
    EXPECT_LE(messages_.size(), 3);
}

TEST_F(LetterPuzzleWindow, closes_and_tells_so_when_every_answer_is_too_long) {
    load({{QString(30000, u'x'), u"hosszú"_s}});

    window_->mutatmodálisan();

    EXPECT_FALSE(window_->isVisible());
    ASSERT_EQ(messages_.size(), 1);
    EXPECT_EQ(messages_[0].milliseconds, 2000);
    EXPECT_EQ(messages_[0].lines, QStringList({u"Egy szó kimaradt,"_s, u"mert 200 betűnél hosszabb."_s}));
}

TEST_F(LetterPuzzleWindow, ends_its_modal_display_with_escape_menu_and_frame) {
    expect_each_ends_modal_display(
        numbered_pairs(3),
        {[this] { press_key(Qt::Key_Escape); }, [this] { trigger("mnu_fájl_kilép"); }, [this] { window_->close(); }});
}

TEST_F(LetterPuzzleWindow, reads_the_list_once_and_leaves_it_alone) {
    start(3);
    const QVector<szópár> before = list_.párok();
    answer_wrongly();
    answer_rightly();
    EXPECT_EQ(list_.párok(), before);

    list_.hozzáfűz({{u"late"_s, u"késő"_s}});
    trigger("mnu_fájl_újrakezd");
    EXPECT_EQ(counter(), u" 1/ 3"_s);
}

TEST_F(LetterPuzzleWindow, takes_nine_tenths_of_the_screen_with_every_caption_whole) {
    for (const QSize &pixels : screens) {
        use_screen(pixels);
        start(10);

        const double share = std::max(window_->szélesség() / screen_.width(), window_->magasság() / screen_.height());
        EXPECT_NEAR(share, 0.9, 0.03);
        expect_no_overlap(*window_);
        for (const char *name : {"Label_főcím", "Label1", "cmd_ok", "Label_info"})
            expect_whole_caption(*window_, QString::fromUtf8(name));
        expect_text_inside(*window_, u"pic_feladvány"_s);
    }
}

TEST_F(LetterPuzzleWindow, keeps_a_question_of_two_hundred_letters_inside_its_place) {
    for (const QSize &pixels : screens) {
        use_screen(pixels);
        start({{u"ox"_s, long_text()}});
        expect_text_inside(*window_, u"pic_feladvány"_s);

        start({{u"ox"_s, long_word()}});
        expect_text_inside(*window_, u"pic_feladvány"_s);
    }
}

TEST_F(LetterPuzzleWindow, opens_a_list_of_five_thousand_pairs) {
    start(5000);

    EXPECT_EQ(counter(), u" 1/ 5000"_s);
    answer_rightly();
    EXPECT_EQ(counter(), u" 2/ 5000"_s);
    expect_whole_caption(*window_, u"Label_info"_s);
}

}  // namespace
