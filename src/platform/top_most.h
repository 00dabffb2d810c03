#pragma once

#include <QtGlobal>
#include <memory>

/// Keeps a window above those of other programs. A window is named as the system names it (QWidget::winId).
class TopMost {
  public:
    virtual ~TopMost() = default;

    /// Puts the window above all others, at the top left of the screen, and lets go of what renew() has done. On
    /// systems where the toolkit's window flag does it (Qt::WindowStaysOnTopHint), nothing else is left to do.
    virtual void make(quintptr window) = 0;
    /// Keeps the window above one that covers the whole screen, too. To be called a few times a second.
    virtual void renew(quintptr window) = 0;
};

/// One source a system.
[[nodiscard]] std::unique_ptr<TopMost> make_top_most();
