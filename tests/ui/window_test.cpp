#include "ui/window.h"

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
#include "ui/window_reference.h"

namespace {

TEST(Window, keeps_its_size_in_twips_as_it_was_given) {
    ablak window(QStringLiteral("próba"), ablak::menü::van);

    window.méretez(10000.1, 8220);

    EXPECT_EQ(window.magasság(), 8220);
    EXPECT_EQ(window.belsőmagasság(), 8220 - window.keretmagasság());
    EXPECT_EQ(window.szélesség(), 10000.1);
}

TEST(Window, gives_its_inner_surface_fifteen_twips_a_pixel_below_the_menu) {
    ablak window(QStringLiteral("próba"), ablak::menü::van);
    window.menüsor()->addMenu(QStringLiteral("&Fájl"));
    auto *control = new QLabel(QStringLiteral("x"));

    window.elhelyez(control, {150, 300, 1500, 450});
    window.méretez(3000 + window.keretszélesség(), 1500 + window.keretmagasság());

    EXPECT_EQ(control->geometry(), QRect(10, 20, 100, 30));
    EXPECT_EQ(window.width(), 200);
    EXPECT_EQ(window.height(), 100 + window.menüsor()->height());
    EXPECT_EQ(control->mapTo(&window, QPoint(0, 0)), QPoint(10, 20 + window.menüsor()->height()));
}

TEST(Window, has_dark_letters_on_its_light_background_whatever_the_desktop_likes) {
    ablak window(QStringLiteral("próba"));

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

    ablak window_{QStringLiteral("próba")};
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

    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"), true);
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

TEST(Window, shown_modally_returns_when_it_is_closed) {
    ablak window(QStringLiteral("próba"));
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
        return std::make_unique<ablak>(QStringLiteral("próba"));
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
