#include "support/odd_files.h"

#include <windows.h>

#include <QDir>
#include <QFile>

namespace {

HANDLE opened(const QString &path, DWORD access, DWORD share, DWORD creation) {
    const HANDLE file = CreateFileW(QDir::toNativeSeparators(path).toStdWString().c_str(), access, share, nullptr,
                                    creation, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        qFatal("cannot open %s", qPrintable(path));
    return file;
}

}  // namespace

// Nobody else can open a file that is open without being shared.
UnreadableFile::UnreadableFile(const QString &path) : path_(path), held_(opened(path, GENERIC_WRITE, 0, CREATE_NEW)) {}

UnreadableFile::~UnreadableFile() {
    CloseHandle(held_);
    QFile::remove(path_);
}

void set_folder_time(const QString &path, const QDateTime &time) {
    // From 1601 on, in tenths of a microsecond.
    constexpr qint64 from_1601_to_1970 = 11'644'473'600;
    const qint64 ticks = (time.toSecsSinceEpoch() + from_1601_to_1970) * 10'000'000;
    const FILETIME when{static_cast<DWORD>(ticks & 0xffffffff), static_cast<DWORD>(ticks >> 32)};
    const HANDLE folder = opened(path, FILE_WRITE_ATTRIBUTES, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_EXISTING);
    if (SetFileTime(folder, nullptr, nullptr, &when) == 0)
        qFatal("cannot set the time of %s", qPrintable(path));
    CloseHandle(folder);
}
