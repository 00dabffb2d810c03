#pragma once

#include <QByteArray>
#include <QString>
#include <variant>

// Names and paths of files that stand in text files of the program's code page, one a line.
namespace names_in_files {

/// The name cannot be a line; the reason as the end of a sentence that says so, without its full stop.
struct Obstacle {
    QString reason;
};

/// The bytes of a line for `name`, without its end, from which exactly this name is read again; else why there are
/// none. A letter with a separate accent is not joined: the name would be another one.
[[nodiscard]] std::variant<QByteArray, Obstacle> line_of(const QString &name);

/// No path of any system is longer, in bytes.
inline constexpr qsizetype longest_line = 65536;

}  // namespace names_in_files
