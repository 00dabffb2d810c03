#include "platform/positioned_read.h"

#include <unistd.h>

#include <cerrno>

qint64 read_at(int handle, qint64 from, char *to, qint64 most) {
    ssize_t got = 0;
    do {
        got = ::pread(handle, to, static_cast<size_t>(most), from);
    } while (got < 0 && errno == EINTR);
    return got;
}
