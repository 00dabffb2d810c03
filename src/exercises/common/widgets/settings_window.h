#pragma once

#include <QPushButton>
#include <QRectF>
#include <QString>

#include "exercises/common/widgets/exercise_surroundings.h"
#include "ui/window/window.h"

/// What the settings windows of the exercises have in common: "Ok" stores what is chosen; "Mégsem", Escape and closing
/// put back what is stored. The window only hides, so that its exercise goes on reading the settings from it.
class feladatbeállító : public ablak {
  protected:
    feladatbeállító(const feladatkörnyezet &környezet, const QString &név, const QString &felirat);

    // The design, in twips.
    static constexpr double keretszéle = 120;
    static constexpr double keretszélessége = 6000;
    static constexpr double sormagasság = 420;
    /// Place of a frame that ends with its last row.
    [[nodiscard]] static QRectF keret(double fent, int sorok);
    /// Place of the row `hányadik`, counted from 0, in a frame.
    [[nodiscard]] static QRectF sor(const QRectF &keret, int hányadik);

    /// To be called when everything else has been placed: places "Ok" and "Mégsem" from `fent` on, scales and styles
    /// the window and loads what is stored.
    void elkészül(double fent);

    /// Puts what is stored into the controls.
    virtual void betölt() = 0;
    /// Stores what the controls say.
    virtual void ment() = 0;
    /// Goes on after "Ok" has stored; hides the window.
    virtual void elfogad() { hide(); }

    void closeEvent(QCloseEvent *event) override;
    void showEvent(QShowEvent *event) override;

    const feladatkörnyezet k_;

  private:
    void cmd_ok_Click();
    void cmd_mégsem_Click();

    QPushButton *cmd_ok_;
    QPushButton *cmd_mégsem_;
};
