#include "ui/messages/result_message_window.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QtTest/QTest>
#include <functional>

#include "support/window_fixture.h"

using namespace Qt::StringLiterals;

namespace {

const QStringList four_lines{u"Ehhez a játékhoz "_s, u"legalább két szót"_s, u"kell felvenni"_s, u"a szószedetbe!"_s};

class ResultMessageWindow : public WindowTest {
  protected:
    /// Shows the lines; `look` is called while the window is open, which is closed then.
    void show(qint16 milliseconds, const QStringList &lines, const std::function<void()> &look) {
        QTimer::singleShot(0, &window_, [&] {
            look();
            window_.close();
        });
        window_.üzenetmutat(milliseconds, lines);
    }

    [[nodiscard]] PictureBox *strip(int i) const {
        for (QWidget *control : window_.vezérlők()) {
            if (control->objectName() == u"Pic_szöveg(%1)"_s.arg(i))
                return dynamic_cast<PictureBox *>(control);
        }
        return nullptr;
    }

    [[nodiscard]] QPushButton *ok() const { return window_.findChild<QPushButton *>(u"cmd_ok"_s); }

    üzenet window_{fitting_, main_window_, u"/szavak/a.szs"_s};
};

TEST_F(ResultMessageWindow, stacks_four_strips_of_equal_height_without_gaps) {
    show(3000, four_lines, [this] {
        for (int i = 1; i < 4; ++i) {
            EXPECT_DOUBLE_EQ(window_.hely(strip(i)).top(), window_.hely(strip(i - 1)).bottom());
            EXPECT_DOUBLE_EQ(window_.hely(strip(i)).height(), window_.hely(strip(0)).height());
        }
        EXPECT_EQ(strip(4), nullptr);
        for (int i = 0; i < 4; ++i)
            EXPECT_EQ(strip(i)->property("tag").toString(), four_lines[i]);
    });
}

TEST_F(ResultMessageWindow, is_just_tall_enough_for_one_line_with_the_button_under_it) {
    show(2000, {u"dog - kutya"_s}, [this] {
        const double ratio = window_.hely(strip(0)).top() / 120;
        EXPECT_NEAR(window_.hely(ok()).top() - window_.hely(strip(0)).bottom(), 120 * ratio, 0.001);
        EXPECT_NEAR(window_.belsőmagasság(), window_.hely(ok()).bottom() + 120, 0.001);
    });
}

TEST_F(ResultMessageWindow, has_its_button_in_the_middle_below_the_lines) {
    show(2000, four_lines, [this] {
        EXPECT_NEAR(window_.hely(ok()).center().x(), window_.belsőszélesség() / 2, 120);
        EXPECT_EQ(ok()->text(), u"Ok"_s);
    });
}

TEST_F(ResultMessageWindow, names_the_word_list_in_its_title) {
    show(2000, four_lines,
         [this] { EXPECT_EQ(window_.windowTitle(), u"Zimbora Angol-Magyar Szótár - /szavak/a.szs szószedet"_s); });
}

TEST_F(ResultMessageWindow, takes_seven_tenths_of_the_screen_in_its_tighter_direction) {
    show(2000, four_lines, [this] {
        EXPECT_LE(window_.szélesség(), 1024 * 15 * 0.7 + 200);
        EXPECT_LE(window_.magasság(), 768 * 15 * 0.7 + 500);
        EXPECT_GE(window_.szélesség(), 1024 * 15 * 0.6);
    });
}

TEST_F(ResultMessageWindow, gives_its_timer_the_time_it_was_passed) {
    show(3000, four_lines, [this] {
        const auto *timer = window_.findChild<QTimer *>(u"Timer1"_s);
        EXPECT_EQ(timer->interval(), 3000);
        EXPECT_TRUE(timer->isActive());
    });
}

TEST_F(ResultMessageWindow, closes_by_itself_when_the_time_is_over) {
    QElapsedTimer clock;
    clock.start();

    window_.üzenetmutat(50, four_lines);

    EXPECT_GE(clock.elapsed(), 45);
    EXPECT_FALSE(window_.isVisible());
}

TEST_F(ResultMessageWindow, closes_by_its_button_and_by_enter) {
    QTimer::singleShot(0, &window_, [this] { QTest::mouseClick(ok(), Qt::LeftButton); });
    window_.üzenetmutat(30000, four_lines);
    EXPECT_FALSE(window_.isVisible());

    üzenet second(fitting_, main_window_, QString());
    QTimer::singleShot(0, &second, [&second] { QTest::keyClick(&second, Qt::Key_Return); });
    second.üzenetmutat(30000, four_lines);
    EXPECT_FALSE(second.isVisible());
}

}  // namespace
