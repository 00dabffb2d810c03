#pragma once

#include <QGroupBox>

#include "exercises/common/widgets/direction_buttons.h"
#include "exercises/common/widgets/settings_window.h"

/// The setting of the scrambled-letter puzzle: the direction, which the game reads from this window. Kept under the key
/// "nyelv".
class frm_kirakó_beáll final : public feladatbeállító {
  public:
    /// Loads the window with what is stored.
    explicit frm_kirakó_beáll(const feladatkörnyezet &környezet);

    [[nodiscard]] irány merre() const { return irány_.kijelölt(); }

  private:
    void betölt() override;
    void ment() override;

    QGroupBox *keret_nyelv_;
    iránygombok irány_;
};
