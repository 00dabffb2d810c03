#pragma once

#include <QPlainTextEdit>
#include <QPushButton>

#include "ui/window/window.h"
#include "ui/window/window_fitting.h"

/// A message of many lines, that can be read, scrolled and copied, with a button "Ok".
class frm_üzenet final : public ablak {
  public:
    /// What is referred to must outlive the window.
    frm_üzenet(const Module_hasznos &hasznos, const ablak &főablak);

    /// Shows the text under a caption and returns when the window has closed.
    void mutat(const QString &felirat, const QString &szöveg);
    /// Writes something below the text while the window is open.
    void hozzáír(const QString &szöveg) { txt_üzenet_->appendPlainText(szöveg); }

  private:
    const Module_hasznos &hasznos_;
    const ablak &főablak_;
    QPlainTextEdit *txt_üzenet_;
    QPushButton *cmd_ok_;
};
