#include "platform/file_system.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFileInfo>
#include <cerrno>

#include "platform/linux/kept_properties.h"
#include "platform/linux/open_file.h"
#include "platform/linux/unfinished_file.h"

namespace {

/// What is to be replaced, if it is there.
struct OldFile {
    bool there = false;
    struct stat state {};
};

/// The right to write is asked for although replacing does not need it: a write-protected file stays.
std::optional<FileTrouble> look_at(const QByteArray &path, OldFile &old) {
    if (stat(path.constData(), &old.state) != 0)
        return errno == ENOENT ? std::nullopt : std::optional(trouble_of(errno));
    old.there = true;
    if (S_ISDIR(old.state.st_mode))
        return FileTrouble::is_folder;
    if (!S_ISREG(old.state.st_mode))
        return FileTrouble::not_a_file;
    if (faccessat(AT_FDCWD, path.constData(), W_OK, AT_EACCESS) != 0)
        return trouble_of(errno);
    return std::nullopt;
}

bool closes_the_folder(int error) {
    return error == EACCES || error == EPERM || error == EROFS || error == EBUSY;
}

int put_in_place(UnfinishedFile &file, const QByteArray &path, const OldFile &old, const QByteArray &bytes) {
    if (old.there) {
        const OpenFile original(open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
        keep_properties(old.state, original.handle(), file.handle());
    }
    return file.fill(bytes);
}

/// The error number of the system, 0 on success.
int replace_in(const OpenFile &folder, const QFileInfo &place, const OldFile &old, const QByteArray &bytes) {
    const QByteArray path = QFile::encodeName(place.filePath());
    // What is to replace a file is closed to everybody else until it has that file's permissions.
    const mode_t rights = old.there ? 0600 : 0666;
    for (const auto name : {UnfinishedFile::Name::later, UnfinishedFile::Name::at_once}) {
        const bool last = name == UnfinishedFile::Name::at_once;
        UnfinishedFile file(folder, place.fileName());
        int error = file.make(rights, name);
        if (error != 0) {
            if (last)
                return error;
            continue;
        }
        error = put_in_place(file, path, old, bytes);
        if (error != 0)
            return error;
        // Some file systems make files without a name that they cannot give one.
        if (file.name_it() != 0 && !last)
            continue;
        return file.take_place();
    }
    return 0;
}

}  // namespace

namespace file_system {

std::optional<FileTrouble> replace(const QString &path, const QByteArray &bytes) {
    const QFileInfo place(QFileInfo(path).absoluteFilePath());
    OldFile old;
    if (const auto trouble = look_at(QFile::encodeName(place.filePath()), old))
        return trouble;
    OpenFile folder(open(QFile::encodeName(place.path()).constData(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (!folder.is_open())
        return trouble_of(errno);
    UnfinishedFile::remove_left(folder, place.fileName());
    const int error = replace_in(folder, place, old, bytes);
    if (error != 0)
        return old.there && closes_the_folder(error) ? FileTrouble::folder_closed : trouble_of(error);
    // Until the folder is on the disk too, a machine that falls may come back with the old file, whole. What the disk
    // says to it is not told: the new file is in its place, and saving again would do nothing else.
    const OpenFile entries(openat(folder.handle(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (entries.is_open())
        static_cast<void>(entries.sync());
    return std::nullopt;
}

std::optional<FileTrouble> overwrite(const QString &path, const QByteArray &bytes) {
    OpenFile file(open(QFile::encodeName(path).constData(), O_WRONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat state {};
    if (!file.is_open() || fstat(file.handle(), &state) != 0)
        return trouble_of(errno);
    if (!S_ISREG(state.st_mode))
        return FileTrouble::not_a_file;
    int error = file.write(bytes);
    if (error == 0 && ftruncate(file.handle(), bytes.size()) != 0)
        error = errno;
    if (error == 0)
        error = file.sync();
    const int closing = file.close();
    if (error == 0)
        error = closing;
    return error == 0 ? std::nullopt : std::optional(trouble_of(error));
}

std::optional<FileTrouble> open_ordinary(QFile &file, QIODevice::OpenMode more) {
    OpenFile opened(open(QFile::encodeName(file.fileName()).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat state {};
    if (!opened.is_open() || fstat(opened.handle(), &state) != 0) {
        // A device without a driver and a socket do not open at all.
        if (errno == ENXIO || errno == ENODEV)
            return FileTrouble::not_a_file;
        return errno == ENOENT ? FileTrouble::missing : trouble_of(errno);
    }
    if (S_ISDIR(state.st_mode))
        return FileTrouble::is_folder;
    if (!S_ISREG(state.st_mode))
        return FileTrouble::not_a_file;
    if (!file.open(opened.handle(), QIODevice::ReadOnly | more, QFileDevice::AutoCloseHandle))
        return FileTrouble::other;
    static_cast<void>(opened.release());
    return std::nullopt;
}

}  // namespace file_system
