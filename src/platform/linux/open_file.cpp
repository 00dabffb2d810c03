#include "platform/linux/open_file.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

FileTrouble trouble_of(int number) {
    switch (number) {
        case EACCES:
        case EPERM:
            return FileTrouble::no_permission;
        case ENOSPC:
            return FileTrouble::no_space;
        case EDQUOT:
            return FileTrouble::over_quota;
        case EROFS:
            return FileTrouble::read_only_disk;
        case EIO:
            return FileTrouble::input_output;
        case EFBIG:
            return FileTrouble::too_large;
        case ENAMETOOLONG:
            return FileTrouble::name_too_long;
        case ENOENT:
        case ENOTDIR:
            return FileTrouble::no_folder;
        case EISDIR:
            return FileTrouble::is_folder;
        case ELOOP:
            return FileTrouble::links_in_a_circle;
        case EMFILE:
        case ENFILE:
            return FileTrouble::too_many_open;
        case EBUSY:
        case ETXTBSY:
            return FileTrouble::in_use;
        default:
            return FileTrouble::other;
    }
}

OpenFile &OpenFile::operator=(OpenFile &&other) noexcept {
    if (this != &other) {
        static_cast<void>(close());
        handle_ = other.release();
    }
    return *this;
}

int OpenFile::release() {
    return std::exchange(handle_, -1);
}

int OpenFile::write(QByteArrayView bytes) const {
    // The system takes no more than 2 GiB at once.
    constexpr qsizetype at_once = 1 << 30;
    while (!bytes.isEmpty()) {
        const auto size = static_cast<size_t>(std::min(bytes.size(), at_once));
        const ssize_t taken = ::write(handle_, bytes.data(), size);
        if (taken < 0 && errno != EINTR)
            return errno;
        // A disk takes what fits; only what does not fit any more fails, and tells why.
        bytes = bytes.sliced(std::max<ssize_t>(taken, 0));
    }
    return 0;
}

int OpenFile::sync() const {
    while (::fsync(handle_) != 0) {
        // A file system that cannot be asked for it says so with EINVAL.
        if (errno == EINVAL)
            return 0;
        if (errno != EINTR)
            return errno;
    }
    return 0;
}

int OpenFile::close() {
    if (!is_open())
        return 0;
    // The handle is gone even when a signal has interrupted the call.
    return ::close(release()) != 0 && errno != EINTR ? errno : 0;
}
