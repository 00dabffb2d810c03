#pragma once

#include <QByteArray>
#include <QByteArrayView>

/// The input of a fuzz target; in one that begins with a byte 1, each of the next two of these is 33,000 of the byte
/// before it: together a line longer than any that the program takes whole, which chance alone would not find.
[[nodiscard]] inline QByteArray expanded(QByteArrayView input) {
    constexpr qsizetype many = 33000;
    if (!input.startsWith('\1'))
        return input.toByteArray();
    QByteArray bytes;
    int left = 2;
    for (const char byte : input.sliced(1)) {
        if (byte == '\1' && !bytes.isEmpty() && left-- > 0)
            bytes.append(many, bytes.back());
        else
            bytes.append(byte);
    }
    return bytes;
}
