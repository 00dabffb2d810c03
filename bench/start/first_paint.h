#pragma once

#include <QApplication>

/// An application that tells, on its standard output, when its first window has been painted and handed to the system.
/// Then it stands still, so that its memory can be read, until its standard input ends, and quits.
class FirstPaint final : public QApplication {
  public:
    using QApplication::QApplication;

    bool notify(QObject *receiver, QEvent *event) override;

  private:
    void tell();

    /// Events that are being handled inside each other. The window's whole content has been painted when the outermost
    /// is done.
    int depth_ = 0;
    bool painted_ = false;
    bool told_ = false;
};
