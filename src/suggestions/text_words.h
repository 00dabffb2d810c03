#pragma once

#include <QString>
#include <QStringView>
#include <QVector>

/// A word of a text: its letters as they stand there, and what separates it from the word before.
struct szövegszó {
    QString szó;
    /// In small letters.
    QString kicsi;
    /// True when more than a blank stands before it: a comma, a full stop, a bracket.
    bool elválasztva = false;
};

/// The words of a text: letters and digits, with apostrophes and hyphens inside. No more than `legfeljebb`.
[[nodiscard]] QVector<szövegszó> szavai(QStringView szöveg, qsizetype legfeljebb);
