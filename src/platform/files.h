#pragma once

#include <QByteArray>
#include <QString>
#include <optional>
#include <variant>

/// What went wrong, as a sentence in Hungarian that names the thing and the reason; shown to the user as it stands.
struct Failure {
    QString sentence;
};

/// A file's bytes, or why they could not be had.
using FileContent = std::variant<QByteArray, Failure>;

namespace files {

/// The whole file `path`.
[[nodiscard]] FileContent read_whole(const QString &path);

/// Replaces the file `path` by `bytes` whole or not at all: on failure, and when the process is killed on the way, the
/// old file stands as it was. Returns the failure, nothing on success.
[[nodiscard]] std::optional<Failure> replace_whole(const QString &path, const QByteArray &bytes);

/// Makes the folder `path`, and those that it lies in, unless it is there.
[[nodiscard]] std::optional<Failure> make_folder(const QString &path);

/// Deletes the file `path`; one that is not there any more is no failure.
[[nodiscard]] std::optional<Failure> remove(const QString &path);

/// True when `path` names a file, directly or through a link; false for a folder.
[[nodiscard]] bool exists(const QString &path);

/// The failure of opening the file `path` for reading, in the same words as read_whole().
[[nodiscard]] Failure cannot_read(const QString &path, const QString &reason);

/// Why `path` cannot be opened for reading, as far as the system tells.
[[nodiscard]] QString reason_not_readable(const QString &path);

}  // namespace files
