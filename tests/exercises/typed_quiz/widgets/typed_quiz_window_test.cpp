#include "exercises/typed_quiz/widgets/typed_quiz_window.h"

#include <QSet>
#include <memory>

#include "support/exercise_fixture.h"
#include "ui/drawing/fonts.h"

using namespace Qt::StringLiterals;

namespace {

class TypedQuizWindow : public ExerciseTest {
  protected:
    void load(const QVector<szópár> &pairs) {
        fill(pairs);
        window_ = std::make_unique<kikérdező>(surroundings());
    }
    void start(const QVector<szópár> &pairs) {
        load(pairs);
        show(*window_);
    }

    [[nodiscard]] QLineEdit *text_box() const { return control<QLineEdit>(*window_, "txt_megoldás"); }
    [[nodiscard]] QString question() const { return shown(*window_, "Pic_kérdés"); }
    [[nodiscard]] QString counter() const { return label(*window_, "label_info"); }

    /// The other member of the pair that is asked, whichever side the question is.
    [[nodiscard]] QString right_answer() const {
        for (const szópár &pair : list_.párok()) {
            if (pair.angol == question())
                return pair.magyar;
            if (pair.magyar == question())
                return pair.angol;
        }
        return u"(not in the list)"_s;
    }

    void answer(const QString &text) {
        text_box()->setText(text);
        click(*window_, "cmd_ok");
    }
    void answer_rightly() { answer(right_answer()); }
    /// Answers until the window closes.
    void answer_all_rightly() {
        for (int i = 0; window_->isVisible() && i < 100; ++i)
            answer_rightly();
    }

    [[nodiscard]] QRadioButton *direction(int i) const {
        return control<QRadioButton>(*window_, u"nyelvoptb(%1)"_s.arg(i));
    }
    void choose_direction(int i) { click(*window_, qUtf8Printable(u"nyelvoptb(%1)"_s.arg(i))); }

    /// The last message's line with the error ratio.
    [[nodiscard]] QString ratio() const { return messages_.isEmpty() ? QString() : messages_.back().lines.back(); }

    std::unique_ptr<kikérdező> window_;
};

TEST_F(TypedQuizWindow, has_every_control_under_its_name_with_its_caption) {
    start(numbered_pairs(10));

    EXPECT_EQ(window_->objectName(), u"kikérdező"_s);
    EXPECT_EQ(window_->windowTitle(), u"Zimbora Angol-Magyar Szótár - Kikérdezés"_s);
    EXPECT_EQ(label(*window_, "Label_felirat"), u"Mi a párja? Gépeld be a megoldást!"_s);
    EXPECT_EQ(control<QPushButton>(*window_, "cmd_ok")->text(), u"Ok"_s);
    EXPECT_EQ(control<QPushButton>(*window_, "cmd_kilép")->text(), u"Kilép"_s);
    EXPECT_EQ(direction(0)->text(), u"Angolról-Magyarra"_s);
    EXPECT_EQ(direction(1)->text(), u"Magyarról - Angolra"_s);
    EXPECT_EQ(direction(2)->text(), u"Változó nyelv"_s);
    EXPECT_EQ(counter(), u" 1/ 10"_s);
    EXPECT_FALSE(text_box()->accessibleName().isEmpty());
}

TEST_F(TypedQuizWindow, asks_for_english_first_with_the_answer_in_the_hidden_tag) {
    start(numbered_pairs(10));

    EXPECT_TRUE(direction(1)->isChecked());
    EXPECT_TRUE(question().startsWith(u"szó"_s));
    EXPECT_EQ(text_box()->property("tag").toString(), right_answer());
    EXPECT_EQ(text_box()->text(), QString());
    EXPECT_TRUE(text_box()->hasFocus());
}

TEST_F(TypedQuizWindow, goes_on_after_a_right_answer_without_a_word) {
    start(numbered_pairs(10));
    const QString first = question();

    answer_rightly();

    EXPECT_EQ(counter(), u" 2/ 10"_s);
    EXPECT_NE(question(), first);
    EXPECT_EQ(text_box()->text(), QString());
    EXPECT_TRUE(text_box()->hasFocus());
    EXPECT_EQ(boxes_.beeps, 0);
    EXPECT_TRUE(messages_.isEmpty());
}

TEST_F(TypedQuizWindow, checks_with_enter_what_was_typed) {
    start(numbered_pairs(10));

    QTest::keyClicks(text_box(), right_answer());
    QTest::keyClick(text_box(), Qt::Key_Return);

    EXPECT_EQ(counter(), u" 2/ 10"_s);
}

TEST_F(TypedQuizWindow, takes_only_the_whole_and_exact_answer) {
    const QString exact = u"Őz, szarvas"_s;
    settings_.beállításment(*std::make_unique<ablak>(u"kikérdező"_s), u"nyelv"_s, 0);
    start({{u"deer"_s, exact}, {u"roe"_s, exact}});

    for (const char16_t *close :
         {u"őz, szarvas", u"ŐZ, SZARVAS", u"Őz, szarvas ", u" Őz, szarvas", u"Öz, szarvas", u"Oz, szarvas",
          u"Őz,szarvas", u"Őz", u"szarvas", u"szarvas, Őz", u"Őz, szarva", u""}) {
        const auto before = messages_.size();
        answer(QString::fromUtf16(close));
        EXPECT_EQ(messages_.size(), before + 1) << QString::fromUtf16(close).toStdString();
        EXPECT_EQ(counter(), u" 1/ 2"_s) << QString::fromUtf16(close).toStdString();
    }
    answer(exact);
    EXPECT_EQ(counter(), u" 2/ 2"_s);
}

TEST_F(TypedQuizWindow, after_a_wrong_answer_beeps_shows_the_pair_and_asks_under_the_same_number) {
    start(numbered_pairs(10));
    answer_rightly();
    const QString pair = question() + u" - "_s + right_answer();
    int beeps_before_message = 0;
    during_message_ = [&] { beeps_before_message = boxes_.beeps; };

    answer(u"wrong"_s);

    EXPECT_EQ(beeps_before_message, 1);
    EXPECT_EQ(boxes_.beeps, 1);
    ASSERT_EQ(messages_.size(), 1);
    EXPECT_EQ(messages_[0].milliseconds, 3000);
    EXPECT_EQ(messages_[0].lines, QStringList{pair});
    EXPECT_EQ(text_box()->text(), QString());
    EXPECT_TRUE(text_box()->hasFocus());
    EXPECT_EQ(counter(), u" 2/ 10"_s);
    EXPECT_TRUE(window_->isVisible());
}

TEST_F(TypedQuizWindow, asks_a_failed_pair_again_at_once_or_later) {
    start(numbered_pairs(3));
    bool at_once = false;
    bool later = false;

    for (int i = 0; i < 40; ++i) {
        const QString failed = question();
        answer(u"wrong"_s);
        (question() == failed ? at_once : later) = true;
    }

    EXPECT_TRUE(at_once);
    EXPECT_TRUE(later);
    EXPECT_EQ(counter(), u" 1/ 3"_s);
}

TEST_F(TypedQuizWindow, asks_every_pair_once_and_the_failed_one_again) {
    start(numbered_pairs(10));
    QStringList answered;
    answer(u"wrong"_s);

    for (int i = 0; window_->isVisible() && i < 100; ++i) {
        answered.append(question());
        answer_rightly();
    }

    EXPECT_EQ(answered.size(), 10);
    EXPECT_EQ(QSet<QString>(answered.begin(), answered.end()).size(), 10);
}

TEST_F(TypedQuizWindow, reports_the_result_in_three_lines_and_closes) {
    load(numbered_pairs(10));
    bool open_during_message = false;
    during_message_ = [&] { open_during_message = window_->isVisible(); };

    show_modally(*window_, [this] { answer_all_rightly(); });

    EXPECT_FALSE(window_->isVisible());
    EXPECT_TRUE(open_during_message);
    ASSERT_EQ(messages_.size(), 1);
    EXPECT_EQ(messages_[0].milliseconds, 3000);
    EXPECT_EQ(messages_[0].lines, QStringList({u"Gratulálok! Sikerült!"_s, u" "_s, u"Hibaarány:  0%"_s}));
}

TEST_F(TypedQuizWindow, counts_a_pair_that_failed_three_times_once) {
    start(numbered_pairs(10));
    const QString victim = question();
    for (int failures = 0, i = 0; window_->isVisible() && i < 1000; ++i) {
        if (question() == victim && failures < 3) {
            answer(u"wrong"_s);
            ++failures;
        } else {
            answer_rightly();
        }
    }

    EXPECT_EQ(boxes_.beeps, 3);
    EXPECT_EQ(ratio(), u"Hibaarány:  11%"_s);
}

TEST_F(TypedQuizWindow, of_one_pair_ends_with_nought_or_a_hundred_percent) {
    start(numbered_pairs(1));
    EXPECT_EQ(counter(), u" 1/ 1"_s);
    answer_rightly();
    EXPECT_FALSE(window_->isVisible());
    EXPECT_EQ(ratio(), u"Hibaarány:  0%"_s);

    start(numbered_pairs(1));
    answer(u"wrong"_s);
    EXPECT_EQ(counter(), u" 1/ 1"_s);
    answer_rightly();
    EXPECT_FALSE(window_->isVisible());
    EXPECT_EQ(ratio(), u"Hibaarány:  100%"_s);
}

TEST_F(TypedQuizWindow, of_an_empty_list_closes_at_once) {
    load({});

    window_->mutatmodálisan();

    EXPECT_FALSE(window_->isVisible());
    EXPECT_FALSE(window_->windowHandle() && window_->windowHandle()->isVisible());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(messages_.isEmpty());
}

TEST_F(TypedQuizWindow, begins_anew_when_the_direction_is_changed) {
    start(numbered_pairs(10));
    answer(u"wrong"_s);
    answer_rightly();
    answer_rightly();
    text_box()->setText(u"half an ans"_s);

    choose_direction(0);

    EXPECT_EQ(counter(), u" 1/ 10"_s);
    EXPECT_TRUE(question().startsWith(u"word"_s));
    EXPECT_EQ(text_box()->text(), QString());
    EXPECT_TRUE(QTest::qWaitFor([this] { return text_box()->hasFocus(); }));
    messages_.clear();
    answer_all_rightly();
    ASSERT_EQ(messages_.size(), 1);
    EXPECT_EQ(ratio(), u"Hibaarány:  0%"_s);
}

TEST_F(TypedQuizWindow, changes_the_direction_by_the_arrow_keys_too) {
    start(numbered_pairs(10));
    direction(1)->setFocus();

    QTest::keyClick(direction(1), Qt::Key_Up);

    EXPECT_TRUE(direction(0)->isChecked());
    EXPECT_TRUE(question().startsWith(u"word"_s));
    EXPECT_TRUE(QTest::qWaitFor([this] { return text_box()->hasFocus(); }));
}

TEST_F(TypedQuizWindow, of_one_pair_stays_as_it_is_when_the_direction_is_changed) {
    start(numbered_pairs(1));
    text_box()->setText(u"half an ans"_s);

    choose_direction(0);

    EXPECT_EQ(question(), u"szó0"_s);
    EXPECT_EQ(text_box()->text(), u"half an ans"_s);
    EXPECT_EQ(counter(), u" 1/ 1"_s);
}

TEST_F(TypedQuizWindow, has_the_focus_in_the_text_box_after_a_click_on_any_direction) {
    for (const int pairs : {1, 5}) {
        for (int i = 0; i < 3; ++i) {
            start(numbered_pairs(pairs));

            choose_direction(i);

            EXPECT_TRUE(QTest::qWaitFor([this] { return text_box()->hasFocus(); })) << pairs << ' ' << i;
        }
    }
}

TEST_F(TypedQuizWindow, draws_the_changing_direction_for_every_question) {
    start(numbered_pairs(60));
    choose_direction(2);
    int english = 0;
    int turns = 0;
    QString last;

    for (int i = 0; i < 59; ++i) {
        const QString side = question().left(3);
        english += side == u"wor"_s ? 1 : 0;
        turns += side != last ? 1 : 0;
        last = side;
        answer_rightly();
    }

    EXPECT_EQ(boxes_.beeps, 0);
    EXPECT_GT(english, 10);
    EXPECT_LT(english, 50);
    EXPECT_GT(turns, 10);
}

TEST_F(TypedQuizWindow, keeps_the_direction_however_it_is_left) {
    const std::function<void()> ways[] = {[this] { click(*window_, "cmd_kilép"); },
                                          [this] { QTest::keyClick(text_box(), Qt::Key_Escape); },
                                          [this] { window_->close(); }, [this] { answer_all_rightly(); }};
    int chosen = 0;
    for (const auto &leave : ways) {
        load(numbered_pairs(3));
        show_modally(*window_, [&] {
            choose_direction(chosen);
            leave();
        });
        EXPECT_FALSE(window_->isVisible());

        start(numbered_pairs(3));
        EXPECT_TRUE(direction(chosen)->isChecked());
        chosen = (chosen + 2) % 3;
    }
}

TEST_F(TypedQuizWindow, keeps_the_direction_under_its_own_name) {
    start(numbered_pairs(3));
    choose_direction(2);
    click(*window_, "cmd_kilép");

    const QString key = u"nyelv"_s;
    EXPECT_EQ(settings_.beállításolvas(*window_, key, 7).toString(), u"2"_s);
    EXPECT_EQ(settings_.beállításolvas(ablak(u"választás_beáll"_s), key, 7), 7);
}

TEST_F(TypedQuizWindow, asks_for_english_when_what_is_stored_names_no_direction) {
    settings_.beállításment(ablak(u"kikérdező"_s), u"nyelv"_s, 9);

    start(numbered_pairs(3));

    EXPECT_TRUE(direction(1)->isChecked());
}

TEST_F(TypedQuizWindow, reads_the_list_once_and_leaves_it_alone) {
    start(numbered_pairs(3));
    const QVector<szópár> before = list_.párok();
    answer(u"wrong"_s);
    answer_all_rightly();
    EXPECT_EQ(list_.párok(), before);

    start(numbered_pairs(3));
    list_.hozzáfűz({{u"late"_s, u"késő"_s}});
    answer_all_rightly();
    EXPECT_FALSE(window_->isVisible());
    EXPECT_EQ(messages_.size(), 3);
}

TEST_F(TypedQuizWindow, has_option_buttons_with_letters_half_as_large_as_the_instruction) {
    start(numbered_pairs(3));

    const double instruction = fonts::points(control<QLabel>(*window_, "Label_felirat")->font());
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(direction(i)->font().families(), QStringList{u"Times New Roman CE"_s});
        EXPECT_NEAR(fonts::points(direction(i)->font()), instruction / 2, 0.01);
    }
}

TEST_F(TypedQuizWindow, writes_the_answer_in_letters_as_large_as_the_question) {
    start({{u"a"_s, u"egy"_s}, {long_text(), long_text()}});
    for (int i = 0; i < 2; ++i) {
        EXPECT_NEAR(fonts::points(text_box()->font()),
                    fonts::points(control<PictureBox>(*window_, "Pic_kérdés")->font()), 0.01);
        EXPECT_LE(text_box()->sizeHint().height(), text_box()->height());
        answer_rightly();
    }
}

TEST_F(TypedQuizWindow, takes_nine_tenths_of_the_screen_with_every_caption_whole) {
    for (const QSize &pixels : screens) {
        use_screen(pixels);
        start(numbered_pairs(3));

        const double share = std::max(window_->szélesség() / screen_.width(), window_->magasság() / screen_.height());
        EXPECT_NEAR(share, 0.9, 0.02);
        expect_no_overlap(*window_);
        for (const char *name :
             {"Label_felirat", "cmd_ok", "cmd_kilép", "label_info", "nyelvoptb(0)", "nyelvoptb(1)", "nyelvoptb(2)"})
            expect_whole_caption(*window_, QString::fromUtf8(name));
    }
}

TEST_F(TypedQuizWindow, keeps_questions_of_two_hundred_letters_inside_their_place) {
    for (const QSize &pixels : screens) {
        use_screen(pixels);
        start({{u"a"_s, long_text()}, {u"b"_s, long_word()}});
        for (int i = 0; i < 2; ++i) {
            expect_text_inside(*window_, u"Pic_kérdés"_s);
            answer_rightly();
        }
    }
}

TEST_F(TypedQuizWindow, takes_an_answer_of_fifty_thousand_letters) {
    const QString longest(50000, u'x');
    start({{longest, u"a"_s}, {u"b"_s, u"c"_s}});
    for (int i = 0; i < 2; ++i)
        answer_rightly();

    EXPECT_EQ(boxes_.beeps, 0);
    EXPECT_EQ(ratio(), u"Hibaarány:  0%"_s);
}

TEST_F(TypedQuizWindow, opens_a_list_of_five_thousand_pairs) {
    start(numbered_pairs(5000));

    EXPECT_EQ(counter(), u" 1/ 5000"_s);
    answer_rightly();
    EXPECT_EQ(counter(), u" 2/ 5000"_s);
}

TEST_F(TypedQuizWindow, is_reached_by_tab_from_control_to_control) {
    start(numbered_pairs(3));

    // The arrow keys lead from one option button to the next.
    EXPECT_EQ(tab_order(*window_), u"txt_megoldás cmd_ok nyelvoptb(0) cmd_kilép"_s);
}

TEST_F(TypedQuizWindow, goes_on_when_the_direction_that_is_chosen_already_is_clicked) {
    start(numbered_pairs(5));
    answer_rightly();
    ASSERT_EQ(counter(), u" 2/ 5"_s);

    choose_direction(1);

    EXPECT_EQ(counter(), u" 2/ 5"_s);
}

}  // namespace
