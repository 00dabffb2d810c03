#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTimer>
#include <algorithm>
#include <functional>

#include "support/window_checks.h"
#include "support/window_fixture.h"

using namespace Qt::StringLiterals;

/// What the small windows in front of the main window are given.
class MessageTest : public WindowTest {
  protected:
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
};
