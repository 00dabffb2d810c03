#pragma once

#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QSpinBox>
#include <array>
#include <functional>

#include "exercises/common/widgets/settings_window.h"
#include "exercises/memory/memory_board.h"

/// The settings of the memory game: size of the board and how long a wrong pair is seen. The game reads them from this
/// window. Kept under the keys "méret" and "felfedésiidő".
class frm_memory_beáll final : public feladatbeállító {
  public:
    /// Loads the window with what is stored. `szópárfelső` is the highest index of the game's pairs: larger boards
    /// cannot be chosen. `újjáték` deals a new game after the settings were saved.
    frm_memory_beáll(const feladatkörnyezet &környezet, int szópárfelső, std::function<void()> újjáték);

    /// The chosen board.
    [[nodiscard]] const játéktér &méret() const { return játékterek[static_cast<size_t>(kijelölt_méret())]; }
    /// In tenths of a second.
    [[nodiscard]] int felfedésiidő() const { return UpDown_idő_->value(); }

  private:
    void elhelyezés();
    void betölt() override { beállbetölt(); }
    void ment() override { beállment(); }
    void elfogad() override;
    void beállbetölt();
    void beállment();
    void UpDown_idő_Change();
    [[nodiscard]] int kijelölt_méret() const;

    int párok_;
    std::function<void()> újjáték_;
    QGroupBox *Frame1_;
    std::array<QRadioButton *, játékterek.size()> Option_méret_;
    QGroupBox *Frame2_;
    QLabel *Label1_;
    QSpinBox *UpDown_idő_;
    QLabel *label_idő_;
};
