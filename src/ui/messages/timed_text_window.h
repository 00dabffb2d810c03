#pragma once

#include <QPushButton>
#include <QTimer>

#include "ui/controls/picture_box.h"
#include "ui/window/window.h"
#include "ui/window/window_fitting.h"

/// A short note in large letters that goes by itself.
class frm_szövegüzenet final : public ablak {
  public:
    /// What is referred to must outlive the window.
    frm_szövegüzenet(const Module_hasznos &hasznos, const ablak &főablak);

    /// Shows the text and returns when the window has closed: by its button, by the user, or after `ezredmásodperc`
    /// milliseconds.
    void mutat(const QString &szöveg, int ezredmásodperc);

  private:
    void cmd_ok_Click() { close(); }
    void timer_bezár_Timer() { cmd_ok_Click(); }

    PictureBox *pic_üzenet_;
    QPushButton *cmd_ok_;
    QTimer *timer_bezár_;
};
