#pragma once

#include <QLabel>
#include <QPushButton>
#include <QVector>
#include <functional>

#include "ui/controls/picture_box.h"
#include "ui/window/window.h"
#include "ui/window/window_fitting.h"

/// The About box: what the program is, its version, who made it.
class frmAbout final : public ablak {
  public:
    /// `program` is the program's name, `verzió` "major.minor.revision". `rendszeradatok` shows what is known of the
    /// system. What is referred to must outlive the window.
    frmAbout(const Module_hasznos &hasznos, const ablak &főablak, const QString &program, const QString &verzió,
             std::function<void()> rendszeradatok);

  private:
    void elhelyezés();

    PictureBox *picIcon_;
    QLabel *lblTitle_;
    QLabel *lblVersion_;
    QVector<QLabel *> lblDescription_;
    QPushButton *cmdOK_;
    QPushButton *cmdSysInfo_;
};
