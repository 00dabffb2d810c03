#include "ui/window/window.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QTimer>
#include <QtTest/QTest>

#include "support/printing.h"
#include "ui/drawing/contrast.h"
#include "ui/window/window_reference.h"

using namespace Qt::StringLiterals;

namespace {

TEST(Window, keeps_its_size_in_twips_as_it_was_given) {
    ablak window(u"próba"_s, ablak::menü::van);

    window.méretez(10000.1, 8220);

    EXPECT_EQ(window.magasság(), 8220);
    EXPECT_EQ(window.belsőmagasság(), 8220 - window.keretmagasság());
    EXPECT_EQ(window.szélesség(), 10000.1);
}

TEST(Window, gives_its_inner_surface_fifteen_twips_a_pixel_below_the_menu) {
    ablak window(u"próba"_s, ablak::menü::van);
    window.menüsor()->addMenu(u"&Fájl"_s);
    auto *control = new QLabel(u"x"_s);

    window.elhelyez(control, {150, 300, 1500, 450});
    window.méretez(3000 + window.keretszélesség(), 1500 + window.keretmagasság());

    EXPECT_EQ(control->geometry(), QRect(10, 20, 100, 30));
    EXPECT_EQ(window.width(), 200);
    EXPECT_EQ(window.height(), 100 + window.menüsor()->height());
    EXPECT_EQ(control->mapTo(&window, QPoint(0, 0)), QPoint(10, 20 + window.menüsor()->height()));
}

TEST(Window, has_dark_letters_on_its_light_background_whatever_the_desktop_likes) {
    ablak window(u"próba"_s);

    window.háttérszínbeállít(QColor(0xe9, 0xef, 0xf4));

    EXPECT_EQ(window.palette().color(QPalette::Window), QColor(0xe9, 0xef, 0xf4));
    EXPECT_LT(window.palette().color(QPalette::WindowText).lightness(), 60);
    EXPECT_LT(window.palette().color(QPalette::Text).lightness(), 60);
    EXPECT_GT(window.palette().color(QPalette::Base).lightness(), 200);
}

class WindowWithButtons : public testing::Test {
  protected:
    WindowWithButtons() {
        window_.elhelyez(text_, {0, 0, 1500, 300});
        window_.elhelyez(ok_, {0, 300, 1500, 300});
        window_.elhelyez(other_, {0, 600, 1500, 300});
        window_.méretez(3000, 3000);
        QObject::connect(ok_, &QPushButton::clicked, &window_, [this] { ++ok_clicks_; });
        QObject::connect(other_, &QPushButton::clicked, &window_, [this] { ++other_clicks_; });
        window_.show();
        window_.activateWindow();
        text_->setFocus();
    }

    ablak window_{u"próba"_s};
    QLineEdit *text_ = new QLineEdit;
    QPushButton *ok_ = new QPushButton;
    QPushButton *other_ = new QPushButton;
    int ok_clicks_ = 0;
    int other_clicks_ = 0;
};

TEST_F(WindowWithButtons, presses_its_default_button_on_enter) {
    window_.alapgombbeállít(ok_);

    QTest::keyClick(text_, Qt::Key_Return);
    QTest::keyClick(text_, Qt::Key_Enter);

    EXPECT_EQ(ok_clicks_, 2);
    EXPECT_TRUE(ok_->isDefault());
}

TEST_F(WindowWithButtons, presses_its_default_button_once_for_a_key_that_is_held_down) {
    window_.alapgombbeállít(ok_);
    QTest::keyClick(text_, Qt::Key_Return);

    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, true);
    QApplication::sendEvent(&window_, &repeat);

    EXPECT_EQ(ok_clicks_, 1);
}

TEST_F(WindowWithButtons, presses_the_button_that_has_the_focus_before_the_default_one) {
    window_.alapgombbeállít(ok_);
    other_->setFocus();

    QTest::keyClick(other_, Qt::Key_Return);

    EXPECT_EQ(other_clicks_, 1);
    EXPECT_EQ(ok_clicks_, 0);
}

TEST_F(WindowWithButtons, shows_no_default_button_beside_another_that_has_the_focus_and_is_pressed) {
    window_.alapgombbeállít(ok_);
    window_.show();
    QApplication::setActiveWindow(&window_);
    ok_->setFocus();
    EXPECT_TRUE(ok_->isDefault());

    other_->setFocus();
    EXPECT_FALSE(ok_->isDefault());

    ok_->setFocus();
    EXPECT_TRUE(ok_->isDefault());
}

TEST(Window, shows_what_is_selected_readably_and_in_a_list_without_the_focus_as_well) {
    const QPalette desktop = QApplication::palette();
    QPalette pale = desktop;
    pale.setColor(QPalette::Inactive, QPalette::Highlight, QColor(240, 240, 240));
    pale.setColor(QPalette::Active, QPalette::Highlight, QColor(120, 180, 230));
    pale.setColor(QPalette::HighlightedText, Qt::white);
    QApplication::setPalette(pale);
    ablak window(u"próba"_s);

    window.háttérszínbeállít(QColor(0xe9, 0xef, 0xf4));

    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        const QColor selection = window.palette().color(group, QPalette::Highlight);
        EXPECT_GE(contrast(window.palette().color(group, QPalette::HighlightedText), selection), 4.5);
        EXPECT_GE(contrast(window.palette().color(group, QPalette::Base), selection), 3);
    }
    QApplication::setPalette(desktop);
}

TEST_F(WindowWithButtons, presses_nothing_when_the_default_button_is_disabled_or_missing) {
    window_.alapgombbeállít(ok_);
    ok_->setEnabled(false);
    QTest::keyClick(text_, Qt::Key_Return);
    window_.alapgombbeállít(nullptr);
    ok_->setEnabled(true);
    QTest::keyClick(text_, Qt::Key_Return);

    EXPECT_EQ(ok_clicks_, 0);
    EXPECT_FALSE(ok_->isDefault());
}

TEST(WindowWithoutFrame, is_as_large_as_its_inner_surface) {
    ablak window(u"próba"_s, ablak::menü::nincs, ablak::keret::nincs);

    window.méretez(3000, 1500);

    EXPECT_TRUE(window.windowFlags() & Qt::FramelessWindowHint);
    EXPECT_EQ(window.keretszélesség(), 0);
    EXPECT_EQ(window.keretmagasság(), 0);
    EXPECT_EQ(window.belsőszélesség(), 3000);
    EXPECT_EQ(window.belsőmagasság(), 1500);
    EXPECT_EQ(window.size(), QSize(200, 100));
}

TEST(WindowWithFrame, keeps_the_size_that_the_program_gives_it) {
    ablak window(u"próba"_s);
    window.méretez(3000, 1500);
    window.show();

    window.resize(500, 500);

    EXPECT_EQ(window.size(),
              QSize(qRound((3000 - window.keretszélesség()) / 15), qRound((1500 - window.keretmagasság()) / 15)));
    EXPECT_EQ(window.szélesség(), 3000);
}

/// A window that the user draws larger and smaller, with a menu bar.
class ResizableWindow : public ablak {
  public:
    ResizableWindow() : ablak(u"próba"_s, menü::van, keret::átméretezhető) {
        menüsor()->addMenu(u"&Fájl"_s);
        elhelyez(control, {0, 0, 1500, 300});
        méretez(6000.4, 4500.3);
        show();
    }

    QLabel *control = new QLabel(u"x"_s);
    int resized = 0;

  protected:
    void Form_Resize() override {
        ++resized;
        elhelyez(control, {0, 0, belsőszélesség(), 300});
    }
};

TEST(ResizableWindow, knows_its_new_size_when_the_user_has_drawn_it_larger) {
    ResizableWindow window;

    window.resize(500, 400);

    EXPECT_EQ(window.resized, 1);
    EXPECT_EQ(window.size(), QSize(500, 400));
    EXPECT_EQ(window.belsőszélesség(), 500 * 15);
    EXPECT_EQ(window.belsőmagasság(), (400 - window.menüsor()->height()) * 15);
    EXPECT_EQ(window.control->width(), 500);
    EXPECT_EQ(window.menüsor()->width(), 500);
}

TEST(ResizableWindow, keeps_the_exact_size_that_the_program_gives_it_and_tells_nothing) {
    ResizableWindow window;

    EXPECT_EQ(window.szélesség(), 6000.4);
    EXPECT_EQ(window.magasság(), 4500.3);
    EXPECT_EQ(window.resized, 0);
}

TEST(ResizableWindow, can_be_drawn_smaller_and_given_a_size_again) {
    ResizableWindow window;

    window.resize(210, 150);
    window.méretez(9000, 6000);

    EXPECT_EQ(window.resized, 1);
    EXPECT_EQ(window.width(), qRound((9000 - window.keretszélesség()) / 15));
    EXPECT_EQ(window.szélesség(), 9000);
}

TEST_F(WindowWithButtons, stays_on_escape_that_nothing_was_said_about) {
    QTest::keyClick(text_, Qt::Key_Escape);

    EXPECT_TRUE(window_.isVisible());
}

TEST_F(WindowWithButtons, closes_on_escape_where_no_button_stands_for_it) {
    window_.escapezár();

    QTest::keyClick(text_, Qt::Key_Escape);

    EXPECT_FALSE(window_.isVisible());
}

TEST_F(WindowWithButtons, presses_its_cancel_button_on_escape_before_it_would_close) {
    window_.escapezár();
    window_.mégsegombbeállít(other_);

    QTest::keyClick(text_, Qt::Key_Escape);

    EXPECT_EQ(other_clicks_, 1);
    EXPECT_EQ(ok_clicks_, 0);
    EXPECT_TRUE(window_.isVisible());
}

TEST_F(WindowWithButtons, takes_no_notice_of_escape_that_is_held_down) {
    window_.escapezár();

    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(&window_, &repeat);

    EXPECT_TRUE(window_.isVisible());
}

TEST(Window, shown_modally_returns_when_it_is_closed) {
    ablak window(u"próba"_s);
    window.méretez(3000, 3000);
    bool was_modal = false;
    QTimer::singleShot(0, &window, [&] {
        was_modal = window.isVisible() && window.isModal();
        window.close();
    });

    window.mutatmodálisan();

    EXPECT_TRUE(was_modal);
    EXPECT_FALSE(window.isVisible());
}

TEST(WindowReference, makes_its_window_at_first_use_and_afresh_after_unloading) {
    int made = 0;
    WindowReference<ablak> reference([&] {
        ++made;
        return std::make_unique<ablak>(u"próba"_s);
    });

    EXPECT_FALSE(reference.loaded());
    EXPECT_EQ(&reference.get(), &reference.get());
    EXPECT_EQ(made, 1);
    reference.unload();
    EXPECT_FALSE(reference.loaded());
    static_cast<void>(reference.get());
    EXPECT_EQ(made, 2);
}

}  // namespace
