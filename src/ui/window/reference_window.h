#pragma once

#include <QTimer>

#include "ui/window/window.h"

/// The hidden window that all others take their icon, their colour and the beginning of their title from. It owns the
/// timer of the music, which ticks each second as long as the program runs.
class frm_referencia final : public ablak {
  public:
    frm_referencia();

    [[nodiscard]] QString felirat() const { return windowTitle(); }
    void feliratbeállít(const QString &felirat) { setWindowTitle(felirat); }

    [[nodiscard]] QTimer &Timer_zene() { return *Timer_zene_; }

  private:
    QTimer *Timer_zene_;
};
