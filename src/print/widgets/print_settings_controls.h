#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <array>

#include "ui/controls/choosable_picture.h"
#include "ui/controls/picture_box.h"
#include "ui/window/window.h"

/// The controls of the print settings: what they are called, what they say, where they stand before the window is
/// scaled. They belong to the window.
struct nyomtatásvezérlők {
    explicit nyomtatásvezérlők(ablak &mire);

    /// Draws the pictures of the orientations in the size that they have now.
    void képeket_rajzol(double képpontok);

    QLabel *Label1;
    QComboBox *list_nyomtatók;

    QGroupBox *Frame_szószedetbeállítás;
    QLabel *Label2;
    QComboBox *list_betűtípus;
    QCheckBox *Check_dőlt;
    QCheckBox *Check_félkövér;
    QLabel *Label3;
    QLabel *Label_betűméret;
    QSpinBox *UpDown_betűméret;
    QLabel *Label4;
    QLabel *Label_hasábszám;
    QSpinBox *UpDown_hasábszám;

    QGroupBox *Frame1;
    /// In the order of `nyomtatástípus`.
    std::array<QRadioButton *, 3> Option_nyomtatástípus;

    QGroupBox *Frame2;
    /// 0 portrait, 1 landscape.
    std::array<QRadioButton *, 2> Option_tájolás;
    std::array<ChoosablePicture *, 2> Picture1;

    QFrame *Picture_container;
    std::array<QLabel *, 2> Label5;
    std::array<PictureBox *, 2> pic_minta;

    QPushButton *cmd_nyomtatásikép;
    QPushButton *cmd_nyomtat;
    QPushButton *cmd_mégsem;
};
