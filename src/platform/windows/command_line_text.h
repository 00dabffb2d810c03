#pragma once

#include <QString>

/// What stands behind the name of the program in a whole command line, without blanks at its ends. The name is quoted
/// or ends at the first blank; a quotation mark cannot be part of it.
[[nodiscard]] inline QString behind_program_name(const QString &whole) {
    const bool quoted = whole.startsWith(u'"');
    qsizetype end = quoted ? whole.indexOf(u'"', 1) + 1 : 0;
    if (quoted && end == 0)
        return {};
    while (end < whole.size() && !whole[end].isSpace())
        ++end;
    return whole.mid(end).trimmed();
}
