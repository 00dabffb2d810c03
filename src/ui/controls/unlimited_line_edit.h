#pragma once

#include <QLineEdit>
#include <limits>

/// Lets a text box take a text of any length, as a list's file may hold it; the toolkit's own end is at 32,767 letters.
inline void take_any_length(QLineEdit &box) {
    box.setMaxLength(std::numeric_limits<int>::max());
}

[[nodiscard]] inline QLineEdit *unlimited_line_edit() {
    auto *box = new QLineEdit;
    take_any_length(*box);
    return box;
}
