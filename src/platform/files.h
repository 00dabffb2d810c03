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

/// The whole file `path`. Nothing but an ordinary file is read: a pipe or a device might never end, or never begin.
[[nodiscard]] FileContent read_whole(const QString &path);

/// Replaces the file `path`, or what it leads to as a link, by `bytes` whole or not at all: on failure, and when the
/// process is killed on the way, the old file stands as it was. On success, which is nothing returned, the disk has the
/// bytes; the file keeps its group, permissions and extended attributes, and its owner where the user may give files
/// away. A file in a folder that takes no files is written where it lies instead, when a copy of it is safe in the
/// folder "zimbora/masolatok" of the user's data; the failure says when the copy is all that is left.
[[nodiscard]] std::optional<Failure> replace_whole(const QString &path, const QByteArray &bytes);

/// Makes the folder `path`, and those that it lies in, unless it is there.
[[nodiscard]] std::optional<Failure> make_folder(const QString &path);

/// Deletes the file `path`; one that is not there any more is no failure.
[[nodiscard]] std::optional<Failure> remove(const QString &path);

/// True when `path` names an ordinary file, directly or through a link; false for a folder, a pipe and a device.
[[nodiscard]] bool exists(const QString &path);

/// True when `path` names anything but a folder, be it something that read_whole() refuses.
[[nodiscard]] bool is_taken(const QString &path);

/// The failure of opening the file `path` for reading, in the same words as read_whole().
[[nodiscard]] Failure cannot_read(const QString &path, const QString &reason);

/// Why `path` cannot be opened for reading, as far as the system tells.
[[nodiscard]] QString reason_not_readable(const QString &path);

/// Why something is not read that is not there.
[[nodiscard]] QString reason_missing();

/// Why something is not read that the memory cannot hold.
[[nodiscard]] QString no_memory();

}  // namespace files
