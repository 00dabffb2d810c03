#pragma once

#include <QRadioButton>
#include <array>

#include "exercises/question_pairs.h"

/// The three option buttons `nyelvoptb` with which the user chooses the direction of the questions.
struct iránygombok {
    /// Makes the buttons; the caller places them.
    iránygombok();

    std::array<QRadioButton *, 3> nyelvoptb;

    [[nodiscard]] irány kijelölt() const;
    /// Selects the button of this index; of any other, the one of the default direction.
    void kijelöl(int index);

    /// Index of the button that is selected when nothing was stored.
    static constexpr int alap = 1;
};
