#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTimer>
#include <algorithm>
#include <functional>

#include "support/printing.h"
#include "support/window_checks.h"
#include "ui/window/reference_window.h"
#include "ui/window/window_fitting.h"

using namespace Qt::StringLiterals;

/// What the small windows in front of the main window are given.
class MessageTest : public testing::Test {
  protected:
    MessageTest() {
        reference_.feliratbeállít(u"Zimbora Angol-Magyar Szótár"_s);
        main_window_.háttérszínbeállít(Qt::cyan);
    }

    void use_screen(const QSize &pixels) { screen_ = QRectF(QPointF(0, 0), QSizeF(pixels) * 15); }

    /// Calls `show`, which returns when `window` has closed. `look` is called while it is open; the window is closed
    /// then, if it still is.
    static void while_shown(ablak &window, const std::function<void()> &show, const std::function<void()> &look) {
        bool looked = false;
        QTimer::singleShot(0, &window, [&] {
            looked = window.isVisible() && window.isModal();
            QApplication::setActiveWindow(&window);
            look();
            window.close();
        });
        show();
        EXPECT_TRUE(looked);
        EXPECT_FALSE(window.isVisible());
    }

    /// Share of the screen that a window takes in its tighter direction.
    [[nodiscard]] double share(const ablak &window) const {
        return std::max((window.szélesség() - window.keretszélesség()) / (screen_.width() - window.keretszélesség()),
                        (window.magasság() - window.keretmagasság()) / (screen_.height() - window.keretmagasság()));
    }

    QRectF screen_{0, 0, 1024 * 15, 768 * 15};
    frm_referencia reference_;
    ablak main_window_{u"szótár"_s};
    Module_hasznos fitting_{reference_, [this] { return screen_; }};
};
