#pragma once

#include <QRectF>
#include <QString>
#include <functional>

#include "ui/controls/picture_box.h"
#include "ui/window/reference_window.h"
#include "ui/window/window.h"

/// The look that every window gives itself when it loads: scaled to a share of the screen, styled, its texts as large
/// as their places allow.
class Module_hasznos final {
  public:
    /// `referencia` must outlive this object. `képernyő` gives the place of the screen in twips; it is asked each time.
    Module_hasznos(const frm_referencia &referencia, std::function<QRectF()> képernyő);

    /// The whole look of a window, in the usual order: the colour of the main window, the share `arány` of the screen,
    /// letters of the same ratio unless the window fits its texts by szövegbeigazít(), and the style. Returns the
    /// ratio.
    enum class betűk { méretezve, beigazítva };
    double öltöztet(ablak &mit, const ablak &főablak, double arány, betűk milyen = betűk::méretezve) const;

    /// Scales a window and its controls with one ratio, so that it takes the share `arány` of the screen in its tighter
    /// direction, and fits the window round its controls with a margin of 120 twips. Returns the ratio.
    double ablakméretez(ablak &mit, double arány) const;

    /// Gives the letters of a window's controls and menus the size that fits controls scaled by `szorzó`.
    static void betűméretez(ablak &mit, double szorzó);

    /// Letters, in points, of dialogs that the toolkit lays out: they grow with the screen as those of the menus do.
    [[nodiscard]] double párbeszédpont() const;

    /// Centres a window and gives it icon, colour, title, type face and its fixed size.
    void ablakstílus(ablak &mit) const;

    [[nodiscard]] QRectF képernyő() const { return képernyő_(); }

    /// Writes `szöveg` into a control in the largest font that fits.
    ///
    /// A picture box has it printed in its middle, in the last size at which it fits, and keeps it as its property
    /// "tag"; an empty text becomes a reminder, a line without small letters stands a little lower, and a text of
    /// several words that would come out smaller than 14 points, or than a fifth of the box, is broken into lines. A
    /// label or button takes it, or its own caption when it is empty, in the first size in which it reaches 90 % of
    /// the control's width or height.
    static void szövegbeigazít(QWidget &hova, const QString &szöveg);
    /// `szöveg`, broken into lines where it is wider than a picture box in letters of `pont` points; "…" ends what is
    /// longer than the box is high.
    [[nodiscard]] static QString sorokra(const PictureBox &hova, const QString &szöveg, double pont);
    /// A number is fitted as its text.
    static void szövegbeigazít(QWidget &hova, double szám);

  private:
    const frm_referencia &referencia_;
    std::function<QRectF()> képernyő_;
};
