#pragma once

#include <QSizeF>
#include <QString>
#include <functional>

#include "ui/picture_box.h"
#include "ui/reference_window.h"
#include "ui/window.h"

/// The look that every window gives itself when it loads: scaled to a share of the screen, styled, its texts as large
/// as their places allow. The usual order is színmásol() (ui/colour_copy.h), ablakméretez(), ablakstílus(), and
/// szövegbeigazít() for each strip of text.
class Module_hasznos final {
  public:
    /// `referencia` must outlive this object. `képernyő` gives the size of the screen in twips; it is asked each time.
    Module_hasznos(const frm_referencia &referencia, std::function<QSizeF()> képernyő);

    /// Scales a window and its controls with one ratio, so that it takes the share `arány` of the screen in its tighter
    /// direction, and fits the window round its controls with a margin of 120 twips. Returns the ratio.
    double ablakméretez(ablak &mit, double arány) const;

    /// Centres a window and gives it icon, colour, title, type face and its fixed size.
    void ablakstílus(ablak &mit) const;

    [[nodiscard]] QSizeF képernyő() const { return képernyő_(); }

    /// Prints `szöveg` into the middle of a picture box in the largest font in which it fits, and keeps it as the box's
    /// property "tag". An empty text becomes a reminder; a text without small letters stands a little lower.
    static void szövegbeigazít(PictureBox &hova, const QString &szöveg);
    /// A number is fitted as its text.
    static void szövegbeigazít(PictureBox &hova, double szám);

    /// Gives a label or button `szöveg`, or its own caption when that is empty, in the first font size in which the
    /// text reaches 90 % of the control's width or height.
    static void szövegbeigazít(QWidget &hova, const QString &szöveg);

  private:
    const frm_referencia &referencia_;
    std::function<QSizeF()> képernyő_;
};
