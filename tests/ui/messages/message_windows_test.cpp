#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextBlock>
#include <QTimer>
#include <memory>

#include "support/message_fixture.h"
#include "support/timers.h"
#include "ui/messages/text_window.h"
#include "ui/messages/timed_text_window.h"

using namespace Qt::StringLiterals;

namespace {

class TextWindow : public MessageTest {
  protected:
    void show(const QString &text, const std::function<void()> &look) {
        window_ = std::make_unique<frm_üzenet>(fitting_, main_window_);
        while_shown(
            *window_, [&] { window_->mutat(u"Rendszeradatok"_s, text); }, look);
    }
    [[nodiscard]] QPlainTextEdit *text() const { return control<QPlainTextEdit>(*window_, "txt_üzenet"); }
    [[nodiscard]] QPushButton *ok() const { return control<QPushButton>(*window_, "cmd_ok"); }

    std::unique_ptr<frm_üzenet> window_;
};

TEST_F(TextWindow, shows_the_text_under_its_title) {
    show(u"első sor\nmásodik <b>sor</b>"_s, [this] {
        EXPECT_EQ(window_->windowTitle(), u"Zimbora Angol-Magyar Szótár - Rendszeradatok"_s);
        EXPECT_EQ(text()->toPlainText(), u"első sor\nmásodik <b>sor</b>"_s);
        EXPECT_TRUE(text()->isReadOnly());
        EXPECT_EQ(ok()->text(), u"Ok"_s);
    });
}

TEST_F(TextWindow, is_left_by_its_button_by_escape_and_by_enter) {
    show(u"x"_s, [this] {
        QTest::mouseClick(ok(), Qt::LeftButton);
        EXPECT_FALSE(window_->isVisible());
    });
    show(u"x"_s, [this] {
        QTest::keyClick(window_.get(), Qt::Key_Escape);
        EXPECT_FALSE(window_->isVisible());
    });
    show(u"x"_s, [this] {
        QTest::keyClick(window_.get(), Qt::Key_Return);
        EXPECT_FALSE(window_->isVisible());
    });
}

TEST_F(TextWindow, is_left_by_escape_while_its_text_has_the_keyboard) {
    show(u"x"_s, [this] {
        text()->setFocus();
        QTest::keyClick(text(), Qt::Key_Escape);
        EXPECT_FALSE(window_->isVisible());
    });
}

TEST_F(TextWindow, has_the_keyboard_on_its_button_and_leads_to_the_text_and_back_with_tab) {
    show(u"x"_s, [this] { EXPECT_EQ(tab_order(*window_), u"cmd_ok txt_üzenet"_s); });
}

TEST_F(TextWindow, takes_nine_tenths_of_the_screen) {
    show(u"x"_s, [this] { EXPECT_NEAR(share(*window_), 0.9, 0.02); });
}

TEST_F(TextWindow, scrolls_to_the_end_of_a_long_text) {
    QString lines;
    for (int i = 1; i <= 300; ++i)
        lines += u"%1. sor\n"_s.arg(i);
    lines += u"az utolsó sor"_s;

    show(lines, [this] {
        EXPECT_GT(text()->verticalScrollBar()->maximum(), 0);
        QTest::keyClick(text(), Qt::Key_End, Qt::ControlModifier);
        text()->verticalScrollBar()->setValue(text()->verticalScrollBar()->maximum());

        const QTextCursor seen_last = text()->cursorForPosition(text()->viewport()->rect().bottomLeft());
        EXPECT_EQ(seen_last.block().text(), u"az utolsó sor"_s);
    });
}

TEST_F(TextWindow, breaks_a_long_line_instead_of_hiding_its_end) {
    show(QString(500, u'w') + u' ' + QString(500, u'w'), [this] {
        EXPECT_EQ(text()->horizontalScrollBar()->maximum(), 0);
        EXPECT_EQ(text()->lineWrapMode(), QPlainTextEdit::WidgetWidth);
    });
}

TEST_F(TextWindow, has_everything_inside_with_a_whole_caption_on_every_screen) {
    for (const QSize &pixels : screens) {
        SCOPED_TRACE(pixels.width());
        use_screen(pixels);
        show(u"egy sor"_s, [&] {
            EXPECT_LE(window_->width(), pixels.width());
            EXPECT_LE(window_->height(), pixels.height());
            expect_no_overlap(*window_);
            expect_whole_caption(*window_, u"cmd_ok"_s);
        });
    }
}

class TimedTextWindow : public MessageTest {
  protected:
    void show(const QString &text, int milliseconds, const std::function<void()> &look) {
        window_ = std::make_unique<frm_szövegüzenet>(fitting_, main_window_);
        while_shown(
            *window_, [&] { window_->mutat(text, milliseconds); }, look);
    }
    [[nodiscard]] QPushButton *ok() const { return control<QPushButton>(*window_, "cmd_ok"); }
    [[nodiscard]] QTimer *timer() const { return control<QTimer>(*window_, "timer_bezár"); }

    std::unique_ptr<frm_szövegüzenet> window_;
};

TEST_F(TimedTextWindow, shows_its_text_as_large_as_it_fits) {
    show(u"Elmentve."_s, 30000, [this] {
        EXPECT_EQ(control<PictureBox>(*window_, "pic_üzenet")->property("tag").toString(), u"Elmentve."_s);
        expect_text_inside(*window_, u"pic_üzenet"_s);
        EXPECT_EQ(ok()->text(), u"Ok"_s);
        EXPECT_EQ(window_->windowTitle(), u"Zimbora Angol-Magyar Szótár - Üzenet"_s);
    });
}

TEST_F(TimedTextWindow, closes_when_its_time_is_over) {
    show(u"x"_s, 12345, [this] {
        EXPECT_EQ(timer()->interval(), 12345);
        EXPECT_TRUE(timer()->isActive());

        expire(*timer());

        EXPECT_FALSE(window_->isVisible());
    });
}

TEST_F(TimedTextWindow, closes_by_itself) {
    frm_szövegüzenet window(fitting_, main_window_);

    // Returns, or the test does not end.
    window.mutat(u"x"_s, 1);

    EXPECT_FALSE(window.isVisible());
    EXPECT_FALSE(control<QTimer>(window, "timer_bezár")->isActive());
}

TEST_F(TimedTextWindow, is_left_by_its_button_by_escape_and_by_enter_and_stops_its_timer) {
    for (const auto &leave :
         std::initializer_list<std::function<void()>>{[this] { QTest::mouseClick(ok(), Qt::LeftButton); },
                                                      [this] { QTest::keyClick(window_.get(), Qt::Key_Escape); },
                                                      [this] { QTest::keyClick(window_.get(), Qt::Key_Return); }}) {
        show(u"x"_s, 30000, [&] {
            leave();
            EXPECT_FALSE(window_->isVisible());
        });
        EXPECT_FALSE(timer()->isActive());
    }
}

TEST_F(TimedTextWindow, takes_six_tenths_of_the_screen) {
    show(u"x"_s, 30000, [this] { EXPECT_NEAR(share(*window_), 0.6, 0.02); });
}

TEST_F(TimedTextWindow, has_the_windows_colour_behind_its_text) {
    reference_.háttérszínbeállít(QColor(10, 200, 30));
    show(u"x"_s, 30000, [this] {
        const QImage picture = control<PictureBox>(*window_, "pic_üzenet")->grab().toImage();
        EXPECT_EQ(picture.pixelColor(5, 5), QColor(10, 200, 30));
    });
}

TEST_F(TimedTextWindow, has_everything_inside_on_every_screen_with_a_short_and_a_long_text) {
    const QString reason =
        u"A fájlt nem lehet írni: /home/valaki/szavak/nagyon hosszú nevű mappa/"
        "angol szavak.szs – nincs jogosultság az írásához."_s;
    for (const QSize &pixels : screens) {
        for (const QString &text : {u"Kész."_s, reason}) {
            SCOPED_TRACE(pixels.width());
            use_screen(pixels);
            show(text, 30000, [this] {
                expect_text_inside(*window_, u"pic_üzenet"_s);
                expect_no_overlap(*window_);
                expect_whole_caption(*window_, u"cmd_ok"_s);
            });
        }
    }
}

}  // namespace
