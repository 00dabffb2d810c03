#include "exercises/learning/widgets/learning_window.h"

#include <QKeyEvent>
#include <memory>

#include "support/exercise_fixture.h"

using namespace Qt::StringLiterals;

namespace {

class LearningWindow : public ExerciseTest {
  protected:
    void load(const QVector<szópár> &pairs) {
        window_ = std::make_unique<tanulás>(surroundings());
        window_->feltölt(pairs);
    }
    void start(const QVector<szópár> &pairs) {
        load(pairs);
        show(*window_);
    }

    void press_ok() { click(*window_, "Command1"); }

    /// English word, Hungarian word and counter.
    [[nodiscard]] QString page() const {
        return shown(*window_, "label1") + u'|' + shown(*window_, "label3") + u'|' + label(*window_, "Label_info");
    }

    std::unique_ptr<tanulás> window_;
};

TEST_F(LearningWindow, has_every_control_under_its_name_with_its_caption) {
    start(numbered_pairs(3));

    EXPECT_EQ(window_->objectName(), u"tanulás"_s);
    EXPECT_EQ(window_->windowTitle(), u"Zimbora Angol-Magyar Szótár - Tanulás"_s);
    EXPECT_EQ(control<QPushButton>(*window_, "Command1")->text(), u"Ok"_s);
    EXPECT_EQ(control<QPushButton>(*window_, "Command2")->text(), u"Kilép"_s);
    EXPECT_TRUE(control<QLabel>(*window_, "Label4")->isVisible());
    for (const char *name : {"label1", "label3"})
        EXPECT_FALSE(control<PictureBox>(*window_, name)->accessibleName().isEmpty());
}

TEST_F(LearningWindow, holds_the_pairs_in_two_hidden_lists_in_list_order) {
    start({{u"dog"_s, u"kutya"_s}, {u"cat"_s, u"macska, cica"_s}});

    const auto *english = control<ListBox>(*window_, "tanlist1");
    const auto *hungarian = control<ListBox>(*window_, "tanlist2");
    EXPECT_FALSE(english->isVisible());
    EXPECT_FALSE(hungarian->isVisible());
    ASSERT_EQ(english->count(), 2);
    ASSERT_EQ(hungarian->count(), 2);
    EXPECT_EQ(english->item(1), u"cat"_s);
    EXPECT_EQ(hungarian->item(1), u"macska, cica"_s);
}

TEST_F(LearningWindow, counts_from_one_with_a_blank_before_each_number) {
    start(numbered_pairs(20));
    EXPECT_EQ(page(), u"word0|szó0| 1/ 20"_s);

    press_ok();
    press_ok();

    EXPECT_EQ(page(), u"word2|szó2| 3/ 20"_s);
}

TEST_F(LearningWindow, reads_the_whole_list_in_order_and_closes_with_the_ok_of_the_last_pair) {
    start(numbered_pairs(3));
    QStringList pages;

    while (window_->isVisible() && pages.size() < 10) {
        pages.append(page());
        press_ok();
    }

    EXPECT_EQ(pages, QStringList({u"word0|szó0| 1/ 3"_s, u"word1|szó1| 2/ 3"_s, u"word2|szó2| 3/ 3"_s}));
}

TEST_F(LearningWindow, of_one_pair_shows_one_of_one_and_closes_with_the_next_ok) {
    start(numbered_pairs(1));
    EXPECT_EQ(page(), u"word0|szó0| 1/ 1"_s);

    press_ok();

    EXPECT_FALSE(window_->isVisible());
}

TEST_F(LearningWindow, of_an_empty_list_closes_at_once) {
    load({});

    window_->mutatmodálisan();

    EXPECT_FALSE(window_->isVisible());
    EXPECT_FALSE(window_->windowHandle() && window_->windowHandle()->isVisible());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(LearningWindow, starts_again_at_the_first_pair_when_it_becomes_active_again) {
    start(numbered_pairs(20));
    press_ok();
    press_ok();
    ASSERT_EQ(page(), u"word2|szó2| 3/ 20"_s);
    ablak another(u"another"_s);

    show(another);
    EXPECT_EQ(page(), u"word2|szó2| 3/ 20"_s);
    QApplication::setActiveWindow(window_.get());

    EXPECT_EQ(page(), u"word0|szó0| 1/ 20"_s);
}

TEST_F(LearningWindow, ends_its_modal_display_with_kilép_with_escape_and_with_its_frame) {
    const std::function<void()> ways[] = {[this] { click(*window_, "Command2"); },
                                          [this] { QTest::keyClick(window_.get(), Qt::Key_Escape); },
                                          [this] { window_->close(); }};
    for (const auto &leave : ways) {
        load(numbered_pairs(3));
        bool was_open = false;

        show_modally(*window_, [&] {
            was_open = window_->isVisible();
            leave();
        });

        EXPECT_TRUE(was_open);
        EXPECT_FALSE(window_->isVisible());
    }
}

TEST_F(LearningWindow, turns_the_page_with_enter) {
    start(numbered_pairs(3));

    QTest::keyClick(window_.get(), Qt::Key_Return);

    EXPECT_EQ(page(), u"word1|szó1| 2/ 3"_s);
}

TEST_F(LearningWindow, turns_one_page_for_enter_that_is_held_down) {
    start(numbered_pairs(10));
    auto *ok = control<QPushButton>(*window_, "Command1");
    ok->setFocus();
    QTest::keyClick(ok, Qt::Key_Return);

    for (int i = 0; i < 8; ++i) {
        QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, true);
        QApplication::sendEvent(ok, &repeat);
    }

    EXPECT_EQ(page(), u"word1|szó1| 2/ 10"_s);
}

TEST_F(LearningWindow, puts_english_on_the_left_and_the_buttons_under_the_middles_of_the_halves) {
    start(numbered_pairs(3));

    const double w = window_->belsőszélesség();
    const double h = window_->belsőmagasság();
    const auto place = [this](const char *name) { return window_->hely(control<QWidget>(*window_, name)); };
    EXPECT_NEAR(place("label1").center().x(), w / 4, 0.01);
    EXPECT_NEAR(place("label3").center().x(), 3 * w / 4, 0.01);
    EXPECT_NEAR(place("label1").width(), w / 2.1, 0.01);
    EXPECT_NEAR(place("label3").width(), w / 2.1, 0.01);
    for (const char *name : {"Command1", "Command2"}) {
        EXPECT_NEAR(place(name).width(), w / 3, 0.01);
        EXPECT_NEAR(place(name).height(), h / 10, 0.01);
        EXPECT_NEAR(place(name).bottom(), h - 120, 0.01);
    }
    EXPECT_NEAR(place("Command1").center().x(), w / 4, 0.01);
    EXPECT_NEAR(place("Command2").center().x(), 3 * w / 4, 0.01);
}

TEST_F(LearningWindow, takes_nineteen_twentieths_of_the_screen_and_keeps_its_controls_apart) {
    for (const QSize &pixels : screens) {
        use_screen(pixels);
        start(numbered_pairs(3));

        const double share = std::max(window_->szélesség() / screen_.width(), window_->magasság() / screen_.height());
        EXPECT_NEAR(share, 0.95, 0.02);
        expect_no_overlap(*window_);
        for (const char *name : {"Command1", "Command2", "Label_info"})
            expect_whole_caption(*window_, QString::fromUtf8(name));
    }
}

TEST_F(LearningWindow, keeps_words_and_meanings_of_two_hundred_letters_inside_their_places) {
    const QVector<szópár> pairs{{long_word(), long_text()}, {long_text(), long_word()}};
    for (const QSize &pixels : screens) {
        use_screen(pixels);
        start(pairs);
        for (int i = 0; i < 2; ++i) {
            expect_text_inside(*window_, u"label1"_s);
            expect_text_inside(*window_, u"label3"_s);
            press_ok();
        }
    }
}

TEST_F(LearningWindow, opens_a_list_of_five_thousand_pairs) {
    start(numbered_pairs(5000));
    EXPECT_EQ(page(), u"word0|szó0| 1/ 5000"_s);

    press_ok();

    EXPECT_EQ(page(), u"word1|szó1| 2/ 5000"_s);
    expect_whole_caption(*window_, u"Label_info"_s);
}

}  // namespace
