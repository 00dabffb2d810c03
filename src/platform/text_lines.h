#pragma once

#include <QByteArrayView>

/// Takes the first line off `rest`, which must not be empty, and returns it without its line end: CR LF, LF alone, or
/// for the last line nothing.
[[nodiscard]] inline QByteArrayView take_line(QByteArrayView &rest) {
    const qsizetype end = rest.indexOf('\n');
    QByteArrayView line = end < 0 ? rest : rest.first(end);
    rest = end < 0 ? QByteArrayView() : rest.sliced(end + 1);
    if (line.endsWith('\r'))
        line.chop(1);
    return line;
}
