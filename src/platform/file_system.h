#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <optional>

/// What a system says of a file that it does not read or write: one word for each sentence that the user is told.
enum class FileTrouble {
    no_permission,
    no_space,
    over_quota,
    read_only_disk,
    input_output,
    too_large,
    name_too_long,
    no_folder,
    is_folder,
    not_a_file,
    links_in_a_circle,
    too_many_open,
    in_use,
    missing,
    /// A file that may be written lies in a folder in which no file can be made or renamed.
    folder_closed,
    other,
};

// What the reading and replacing of files needs of the system. One source a system.
namespace file_system {

/// Puts a file with `bytes` in the place of `path`, which is no link, or makes it; the bytes are on the disk when this
/// returns. The old file stands as it was after any trouble, and when the process is killed or the machine falls on the
/// way. Its group, its owner where the user may give files away, its permissions and extended attributes stay. The
/// bytes wait in an unfinished file beside it (platform/unfinished_files.h); those that killed saves of this very file
/// have left are removed.
[[nodiscard]] std::optional<FileTrouble> replace(const QString &path, const QByteArray &bytes);

/// Writes `bytes` over those of the file `path`, which is there; they are on the disk when this returns. After any
/// trouble the file may hold a mixture of both.
[[nodiscard]] std::optional<FileTrouble> overwrite(const QString &path, const QByteArray &bytes);

/// Opens `file` for reading, with `more` beside it, if it is an ordinary file. Waits for nothing: neither for the other
/// end of a pipe nor for a device.
[[nodiscard]] std::optional<FileTrouble> open_ordinary(QFile &file, QIODevice::OpenMode more = {});

}  // namespace file_system
