#pragma once

#include <QString>

/// Texts of a list are read and written whole, however long they are. Windows and paper show as many letters as can be
/// laid out at once, and "…" for the rest.
inline constexpr qsizetype leghosszabb_mutatott = 10'000;

/// Whether `szöveg` is shown whole.
[[nodiscard]] inline bool egészben_mutatott(const QString &szöveg) {
    return szöveg.size() <= leghosszabb_mutatott;
}

/// What is shown of `szöveg`.
[[nodiscard]] inline QString mutatott(const QString &szöveg) {
    return egészben_mutatott(szöveg) ? szöveg : szöveg.left(leghosszabb_mutatott) + u'…';
}
