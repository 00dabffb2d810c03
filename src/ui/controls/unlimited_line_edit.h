#pragma once

#include <QLineEdit>
#include <limits>

/// A text box that takes a text of any length, as a list's file may hold it; the toolkit's own ends at 32,767 letters.
[[nodiscard]] inline QLineEdit *unlimited_line_edit() {
    auto *box = new QLineEdit;
    box->setMaxLength(std::numeric_limits<int>::max());
    return box;
}
