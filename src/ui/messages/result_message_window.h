#pragma once

#include <QList>
#include <QPushButton>
#include <QStringList>
#include <QTimer>

#include "ui/controls/picture_box.h"
#include "ui/window/window.h"
#include "ui/window/window_fitting.h"

/// A message of one or more lines in large letters, with a button "Ok", that closes itself after a while.
class üzenet final : public ablak {
  public:
    /// `hasznos` and `főablak` must outlive the window; `szószedet` is the current word-list file, for the title.
    üzenet(const Module_hasznos &hasznos, const ablak &főablak, const QString &szószedet);

    /// Shows the lines, at least one and at most 255, and returns when the window has closed: by its button, by the
    /// user, or after `ezredmásodperc` milliseconds.
    void üzenetmutat(qint16 ezredmásodperc, const QStringList &sorok);

  private:
    void cmd_ok_Click();
    void Timer1_Timer();
    void sorokat_rak(int darab);

    const Module_hasznos &hasznos_;
    const ablak &főablak_;
    QList<PictureBox *> Pic_szöveg_;
    QPushButton *cmd_ok_;
    QTimer *Timer1_;
};
