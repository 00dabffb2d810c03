#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <optional>
#include <variant>

#include "platform/files.h"

// The text files of the sound and music settings: windows-1250, one item a line, lines end with CR LF. First come
// switches, each a line with its number, 0 or 1, led by a blank; then file names, one a line.
namespace beállítássorok {

/// A switch of a file: 0 is off, any other whole number on. Nothing when the line holds something else.
[[nodiscard]] std::optional<bool> kapcsoló(const QString &sor);

/// The line of a switch.
[[nodiscard]] QString kapcsolósor(bool be);

/// The lines of the file `fájl`, read whole, but for those that no name is as long as; of a missing file, none.
[[nodiscard]] std::variant<QStringList, Failure> olvas(const QString &fájl);

/// The bytes of a file of these lines; a failure that names the line which the code page cannot hold, or which is two.
[[nodiscard]] FileContent bájtok(const QStringList &sorok);

}  // namespace beállítássorok
