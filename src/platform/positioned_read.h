#pragma once

#include <QtGlobal>

/// Reads up to `most` bytes from the byte offset `from` of an open file into `to` with one read of the system and
/// without moving the file's own position. Returns how many came; 0 at the end, negative when reading fails. `handle`
/// is QFile::handle(). One source a system.
[[nodiscard]] qint64 read_at(int handle, qint64 from, char *to, qint64 most);
