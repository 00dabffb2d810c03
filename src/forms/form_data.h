#pragma once

#include <QString>
#include <QStringList>

// The folder of the data that explain forms has, beside them, a text file of their check sums, made with them:
//
//     <MD5 sum, 32 hexadecimal digits> <name of the file> LF
//
// It tells a damaged file from a whole one: what reads them trusts them.

/// Of these files of the folder `mappa` those that are missing or not what they were made, each a sentence for the
/// user.
[[nodiscard]] QStringList hibás_alakfájlok(const QString &mappa, const QStringList &nevek);
