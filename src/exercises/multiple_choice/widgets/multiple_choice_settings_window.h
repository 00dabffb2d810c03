#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QSlider>
#include <array>
#include <functional>

#include "exercises/common/widgets/direction_buttons.h"
#include "exercises/common/widgets/settings_window.h"

/// The settings of the multiple choice: direction, number of candidates, way of answering. The game reads them from
/// this window. Kept under the keys "nyelv", "valasztekszam" and "katt".
class választás_beáll final : public feladatbeállító {
  public:
    /// Loads the window with what is stored. `párok_száma` tells how many pairs the game holds, `újrakezd` starts the
    /// game anew after the settings were saved.
    választás_beáll(const feladatkörnyezet &környezet, std::function<int()> párok_száma,
                    std::function<void()> újrakezd);

    [[nodiscard]] irány merre() const { return irány_.kijelölt(); }
    [[nodiscard]] int választék() const { return Slider_választékszám_->value(); }
    /// True when answers are dragged into the frame, false when they are clicked.
    [[nodiscard]] bool húzással() const { return Opt_megoldástípus_[1]->isChecked(); }

  private:
    void elhelyezés();
    void betölt() override;
    void ment() override;
    void elfogad() override;

    std::function<int()> párok_száma_;
    std::function<void()> újrakezd_;
    QGroupBox *keret_nyelv_;
    iránygombok irány_;
    QGroupBox *keret_egyéb_;
    QLabel *Label_választék_;
    QSlider *Slider_választékszám_;
    QLabel *Label_választék_száma_;
    std::array<QRadioButton *, 2> Opt_megoldástípus_;
};
