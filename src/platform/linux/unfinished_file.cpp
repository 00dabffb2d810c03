#include "platform/linux/unfinished_file.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <cerrno>
#include <cstdio>

#include "platform/unfinished_files.h"

namespace {

/// Attempts at a name that nobody has.
constexpr int attempts = 100;

QByteArray new_name(const QString &target) {
    return QFile::encodeName(unfinished_files::new_name_for(target));
}

/// The name under which the system can give a file its first one.
QByteArray place_of(int handle) {
    return "/proc/self/fd/" + QByteArray::number(handle);
}

/// Where the file system knows no locks, none is held and none is found, so nothing is ever removed there.
void lock(int handle) {
    while (flock(handle, LOCK_EX) != 0 && errno == EINTR) {
    }
}

bool has_a_name(int handle) {
    struct stat state {};
    return fstat(handle, &state) == 0 && state.st_nlink > 0;
}

/// True for a file of this user that no process is writing.
bool is_left(int handle) {
    struct stat state {};
    return fstat(handle, &state) == 0 && S_ISREG(state.st_mode) && state.st_uid == geteuid() &&
           flock(handle, LOCK_EX | LOCK_NB) == 0;
}

}  // namespace

int UnfinishedFile::make(mode_t rights, Name name) {
    if (name == Name::at_once)
        return make_named(rights);
    file_ = OpenFile(openat(folder_.handle(), ".", O_TMPFILE | O_RDWR | O_CLOEXEC, rights));
    if (!file_.is_open())
        return errno;
    lock(file_.handle());
    return access(place_of(file_.handle()).constData(), F_OK) == 0 ? 0 : EOPNOTSUPP;
}

int UnfinishedFile::make_named(mode_t rights) {
    for (int attempt = 0; attempt < attempts; ++attempt) {
        name_ = new_name(target_);
        file_ = OpenFile(openat(folder_.handle(), name_.constData(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, rights));
        if (!file_.is_open()) {
            const int error = errno;
            name_.clear();
            if (error != EEXIST)
                return error;
            continue;
        }
        lock(file_.handle());
        // Another save may have taken it for left before it was locked.
        if (has_a_name(file_.handle()))
            return 0;
    }
    name_.clear();
    return EEXIST;
}

int UnfinishedFile::fill(QByteArrayView bytes) {
    if (const int error = file_.write(bytes))
        return error;
    if (const int error = file_.sync())
        return error;
    // A copy of the handle is closed for the errors that closing tells; the file itself stays open for its lock.
    OpenFile copy(fcntl(file_.handle(), F_DUPFD_CLOEXEC, 0));
    return copy.is_open() ? copy.close() : errno;
}

int UnfinishedFile::name_it() {
    for (int attempt = 0; name_.isEmpty(); ++attempt) {
        const QByteArray name = new_name(target_);
        if (linkat(AT_FDCWD, place_of(file_.handle()).constData(), folder_.handle(), name.constData(),
                   AT_SYMLINK_FOLLOW) == 0)
            name_ = name;
        else if (errno != EEXIST || attempt == attempts)
            return errno;
    }
    return 0;
}

int UnfinishedFile::take_place() {
    if (renameat(folder_.handle(), name_.constData(), folder_.handle(), QFile::encodeName(target_).constData()) != 0)
        return errno;
    name_.clear();
    return 0;
}

void UnfinishedFile::remove() {
    if (!name_.isEmpty())
        unlinkat(folder_.handle(), name_.constData(), 0);
    name_.clear();
}

void UnfinishedFile::remove_left(const OpenFile &folder, const QString &target) {
    DIR *entries = fdopendir(openat(folder.handle(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (entries == nullptr)
        return;
    while (const dirent *entry = readdir(entries)) {
        const QByteArray name(entry->d_name);
        if (!unfinished_files::is_name_for(target, QFile::decodeName(name)))
            continue;
        const OpenFile left(openat(folder.handle(), name.constData(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
        if (left.is_open() && is_left(left.handle()))
            unlinkat(folder.handle(), name.constData(), 0);
    }
    closedir(entries);
}
