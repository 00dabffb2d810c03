#pragma once

#include <QFrame>
#include <QLabel>

#include "ui/controls/picture_box.h"
#include "ui/window/window.h"
#include "ui/window/window_fitting.h"

/// The splash: says what is starting while that takes long.
class FrmFolyamat final : public ablak {
  public:
    /// `verzió` is "major.minor.revision"; `rendszer` names the system the program runs on. `hasznos` must outlive the
    /// window.
    FrmFolyamat(const Module_hasznos &hasznos, const QString &verzió, const QString &rendszer);

  private:
    QFrame *Frame1_;
    QLabel *lblCompany_;
    QLabel *lblCompanyProduct_;
    QLabel *lblProductName_;
    QLabel *lblPlatform_;
    QLabel *lblVersion_;
    QLabel *lblMaker_;
    PictureBox *imgLogo_;
};
