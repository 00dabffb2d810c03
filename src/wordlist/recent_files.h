#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <functional>

#include "platform/files.h"

// The recent-files list: text in the program's code page, one full path a line, the most recent first. Any number of
// lines; only the first four that name existing files count.
namespace legutóbbifájlok {

inline constexpr int legfeljebb = 4;

/// The first four existing files of a file's bytes. `létezik` tells whether a file is there.
[[nodiscard]] QStringList olvas(QByteArrayView bytes, const std::function<bool(const QString &)> &létezik);

/// The bytes of a file with `aktuális` first and then `menü`, in order, less what equals `aktuális`; a failure when the
/// code page lacks a character of a path.
[[nodiscard]] FileContent ír(const QString &aktuális, const QStringList &menü);

/// Caption of menu item `n` (from 1): "&1: " and the path. A "&" of the path is doubled, as menus want it.
[[nodiscard]] QString felirat(int n, const QString &út);

/// The path of such a caption.
[[nodiscard]] QString útvonal(const QString &felirat);

}  // namespace legutóbbifájlok
