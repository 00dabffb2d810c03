#pragma once

#include <QString>
#include <QStringList>

#include "exercises/common/hungarian_text.h"

/// The letters of a text, with a bar between two: "cs|é|sz|e".
inline QString letters_of(const kszöveg &text) {
    QStringList letters;
    for (int i = 1; i <= text.MAGYARBETŰKSZÁMA(); ++i)
        letters.append(text.szóbetűje(i));
    return letters.join(u'|');
}

/// `text` with its letters, in Hungarian.
inline kszöveg hungarian(const QString &text) {
    kszöveg made;
    made.value(text);
    return made;
}

/// The letters of `text` in Hungarian.
inline QString hungarian_letters(const QString &text) {
    return letters_of(hungarian(text));
}

/// The letters of `text` in English.
inline QString english_letters(const QString &text) {
    kszöveg english;
    english.szövegnyelv(kszöveg::angol);
    english.value(text);
    return letters_of(english);
}

/// The letters a, b, c and so on, from a again after z.
inline QStringList plain_letters(int count) {
    QStringList letters;
    for (int i = 0; i < count; ++i)
        letters.append(QString(QChar(u'a' + i % 26)));
    return letters;
}
