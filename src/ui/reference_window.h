#pragma once

#include "ui/window.h"

/// The hidden window that all others take their icon, their colour and the beginning of their title from.
class frm_referencia final : public ablak {
  public:
    frm_referencia();

    [[nodiscard]] QString felirat() const { return windowTitle(); }
    void feliratbeállít(const QString &felirat) { setWindowTitle(felirat); }
};
