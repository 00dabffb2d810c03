#pragma once

#include <QString>
#include <QStringList>

/// The word in a text that is to be explained, in the letters of the dictionaries: blanks around it taken off, accents
/// joined with their letters, the apostrophe a plain one. Empty when it is none: several words, no letter, a control
/// character, more than 50 letters.
[[nodiscard]] QString elemezhető_szó(const QString &szöveg);

/// The ways to write a word that are to be tried, the first that has readings counts: as it stands, in small letters,
/// with a capital.
[[nodiscard]] QStringList írásmódok(const QString &szó);
