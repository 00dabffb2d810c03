#include "platform/file_system.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <string>
#include <utility>

#include "platform/unfinished_files.h"
#include "platform/windows/file_trouble.h"

using namespace Qt::StringLiterals;

namespace {

/// A save takes less; what is older was left by a process that was ended on the way.
constexpr qint64 longest_save = 600;

using Trouble = std::optional<FileTrouble>;

/// In the form that has no limit to its length.
std::wstring native(const QString &path) {
    const QString whole = QDir::toNativeSeparators(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
    if (whole.startsWith(u"\\\\?\\"_s))
        return whole.toStdWString();
    const QString form = whole.startsWith(u"\\\\"_s) ? u"\\\\?\\UNC\\"_s + whole.mid(2) : u"\\\\?\\"_s + whole;
    return form.toStdWString();
}

Trouble last_trouble() {
    return trouble_of(GetLastError());
}

/// A file open for writing, to which no other process has access. Closed at the end of this object.
class WrittenFile final {
  public:
    WrittenFile(const QString &path, DWORD disposition)
        : handle_(CreateFileW(native(path).c_str(), GENERIC_WRITE, 0, nullptr, disposition, FILE_ATTRIBUTE_NORMAL,
                              nullptr)) {}
    ~WrittenFile() { static_cast<void>(close()); }
    WrittenFile(const WrittenFile &) = delete;
    WrittenFile &operator=(const WrittenFile &) = delete;

    [[nodiscard]] bool is_open() const { return handle_ != INVALID_HANDLE_VALUE; }
    [[nodiscard]] bool is_on_a_disk() const { return GetFileType(handle_) == FILE_TYPE_DISK; }

    /// Makes `bytes` all that the file holds, on the disk, and closes it.
    [[nodiscard]] Trouble fill(QByteArrayView bytes) {
        const Trouble trouble = write(bytes);
        const bool closed = close();
        return trouble || closed ? trouble : last_trouble();
    }

  private:
    [[nodiscard]] Trouble write(QByteArrayView bytes) {
        constexpr qsizetype at_once = 1 << 30;
        while (!bytes.isEmpty()) {
            DWORD taken = 0;
            const auto size = static_cast<DWORD>(std::min(bytes.size(), at_once));
            if (WriteFile(handle_, bytes.data(), size, &taken, nullptr) == 0)
                return last_trouble();
            if (taken == 0)
                return FileTrouble::no_space;
            bytes = bytes.sliced(taken);
        }
        return SetEndOfFile(handle_) != 0 && FlushFileBuffers(handle_) != 0 ? std::nullopt : last_trouble();
    }

    bool close() {
        HANDLE handle = std::exchange(handle_, INVALID_HANDLE_VALUE);
        return handle == INVALID_HANDLE_VALUE || CloseHandle(handle) != 0;
    }

    HANDLE handle_;
};

/// What is being written cannot be removed by another process; between that and its taking the place it is too young.
void remove_left(const QFileInfo &place) {
    const QDateTime long_ago = QDateTime::currentDateTime().addSecs(-longest_save);
    const QDir folder(place.path());
    for (const QFileInfo &left : folder.entryInfoList({u".zimbora-*.tmp"_s}, QDir::Files | QDir::Hidden)) {
        if (unfinished_files::is_name_for(place.fileName(), left.fileName()) && left.lastModified() < long_ago)
            DeleteFileW(native(left.filePath()).c_str());
    }
}

bool move(const QString &from, const QString &to) {
    return MoveFileExW(native(from).c_str(), native(to).c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) !=
           0;
}

/// Puts the file `whole` in the place of `path`, of which it takes over the access list, the attributes and the
/// streams.
Trouble take_place_of(const QString &path, const QString &whole) {
    // Without one the system may end with neither of the two files under the old name.
    const QString aside = QFileInfo(path).path() + u'/' + unfinished_files::new_name_for(QFileInfo(path).fileName());
    if (ReplaceFileW(native(path).c_str(), native(whole).c_str(), native(aside).c_str(),
                     REPLACEFILE_IGNORE_MERGE_ERRORS | REPLACEFILE_IGNORE_ACL_ERRORS, nullptr, nullptr) != 0) {
        DeleteFileW(native(aside).c_str());
        return std::nullopt;
    }
    const DWORD error = GetLastError();
    if (error == ERROR_UNABLE_TO_MOVE_REPLACEMENT_2)
        static_cast<void>(move(aside, path));
    // Not every file system can do it.
    if ((error == ERROR_NOT_SUPPORTED || error == ERROR_INVALID_FUNCTION || error == ERROR_INVALID_PARAMETER) &&
        move(whole, path))
        return std::nullopt;
    return trouble_of(error);
}

}  // namespace

namespace file_system {

Trouble replace(const QString &path, const QByteArray &bytes) {
    const QFileInfo place(QFileInfo(path).absoluteFilePath());
    if (place.isDir())
        return FileTrouble::is_folder;
    if (!QFileInfo(place.path()).isDir())
        return FileTrouble::no_folder;
    const DWORD attributes = GetFileAttributesW(native(place.filePath()).c_str());
    const bool there = attributes != INVALID_FILE_ATTRIBUTES;
    if (there && (attributes & FILE_ATTRIBUTE_READONLY) != 0)
        return FileTrouble::no_permission;
    remove_left(place);
    const QString unfinished = place.path() + u'/' + unfinished_files::new_name_for(place.fileName());
    WrittenFile file(unfinished, CREATE_NEW);
    if (!file.is_open()) {
        const DWORD error = GetLastError();
        return there && error == ERROR_ACCESS_DENIED ? FileTrouble::folder_closed : trouble_of(error);
    }
    Trouble trouble = file.fill(bytes);
    if (!trouble && there)
        trouble = take_place_of(place.filePath(), unfinished);
    else if (!trouble && !move(unfinished, place.filePath()))
        trouble = last_trouble();
    if (trouble)
        DeleteFileW(native(unfinished).c_str());
    return trouble;
}

Trouble overwrite(const QString &path, const QByteArray &bytes) {
    WrittenFile file(path, OPEN_EXISTING);
    if (!file.is_open())
        return last_trouble();
    return file.is_on_a_disk() ? file.fill(bytes) : FileTrouble::not_a_file;
}

Trouble open_ordinary(QFile &file, QIODevice::OpenMode more) {
    if (QFileInfo(file.fileName()).isDir())
        return FileTrouble::is_folder;
    // A name such as "CON" stands for a device.
    HANDLE handle = CreateFileW(QDir::toNativeSeparators(file.fileName()).toStdWString().c_str(), GENERIC_READ,
                                FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle != INVALID_HANDLE_VALUE) {
        const bool ordinary = GetFileType(handle) == FILE_TYPE_DISK;
        CloseHandle(handle);
        if (!ordinary)
            return FileTrouble::not_a_file;
    }
    return file.open(QIODevice::ReadOnly | more) ? std::nullopt : Trouble(last_trouble());
}

}  // namespace file_system
