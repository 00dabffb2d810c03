#pragma once

#include <QRadioButton>
#include <QVariant>
#include <array>
#include <functional>

#include "exercises/common/question_pairs.h"
#include "ui/window/window.h"

/// The three option buttons `nyelvoptb` with which the user chooses the direction of the questions.
struct iránygombok {
    iránygombok();

    std::array<QRadioButton *, 3> nyelvoptb;

    /// Places the buttons, button `i` at `hol(i)`, and makes them a group.
    void elhelyez(ablak &mire, const std::function<QRectF(int)> &hol);

    [[nodiscard]] irány kijelölt() const;
    /// Selects the button of this index; of any other and of what is no number, the one of the default direction.
    void kijelöl(const QVariant &index);

    /// Index of the button that is selected when nothing was stored.
    static constexpr int alap = 1;
};
