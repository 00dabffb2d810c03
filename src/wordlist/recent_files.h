#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>
#include <functional>

#include "platform/files.h"

// The recent-files list: text in the program's code page, one full path a line, the most recent first. Any number of
// lines; only the first four that name existing files count.
namespace legutóbbifájlok {

inline constexpr int legfeljebb = 4;

/// The first four existing files of a file's bytes. `létezik` tells whether a file is there. Lines longer than any path
/// are passed over.
[[nodiscard]] QStringList olvas(QByteArrayView bytes, const std::function<bool(const QString &)> &létezik);

/// A file and what could not come into it.
struct írott {
    QByteArray bytes;
    /// For each path that cannot be a line of its own, a sentence that names it and the reason.
    QVector<Failure> kimaradtak;
};

/// The file with `aktuális` first and then `menü`, in order, less what equals `aktuális`.
[[nodiscard]] írott ír(const QString &aktuális, const QStringList &menü);

/// Caption of menu item `n` (from 1): "&1: " and the path. A "&" of the path is doubled, as menus want it.
[[nodiscard]] QString felirat(int n, const QString &út);

/// The path of such a caption.
[[nodiscard]] QString útvonal(const QString &felirat);

}  // namespace legutóbbifájlok
