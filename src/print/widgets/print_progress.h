#pragma once

#include <QFont>
#include <QProgressDialog>
#include <chrono>
#include <functional>
#include <memory>

/// Shows how far a long work has come, with a button that cancels it. Work that is done within half a second shows
/// nothing and lets no events run.
class PrintProgress final {
  public:
    using Clock = std::function<std::chrono::milliseconds()>;

    /// Stands in front of `window`, in letters like those of `window`'s controls.
    PrintProgress(QWidget &window, const QFont &letters, QString caption, Clock clock);

    /// To be called on the way; false when the user has cancelled.
    [[nodiscard]] bool step(int done, int all);

  private:
    void open();

    QWidget &window_;
    QFont letters_;
    QString caption_;
    Clock clock_;
    std::chrono::milliseconds begun_;
    std::chrono::milliseconds shown_{};
    std::unique_ptr<QProgressDialog> dialog_;
};
