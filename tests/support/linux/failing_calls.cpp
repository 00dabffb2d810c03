// See failing_calls.h.
#include "support/linux/failing_calls.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstring>

namespace {

FailingCalls wanted;

/// The system's own function.
template <typename Function>
Function own(Function, const char *name) {
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

bool is_ordinary(int handle) {
    struct stat state {};
    return fstat(handle, &state) == 0 && S_ISREG(state.st_mode);
}

bool is_written(int handle) {
    return is_ordinary(handle) && (fcntl(handle, F_GETFL) & O_ACCMODE) != O_RDONLY;
}

/// True, with the error set, when this call is to fail.
bool fails(const char *call) {
    if (wanted.call == nullptr || std::strcmp(wanted.call, call) != 0 || wanted.after-- > 0 || wanted.times-- <= 0)
        return false;
    ++wanted.failed;
    errno = wanted.error;
    return true;
}

}  // namespace

extern "C" {

FailingCalls *zimbora_failing_calls() {
    return &wanted;
}

ssize_t write(int handle, const void *bytes, size_t size) {
    static const auto real = own(&write, "write");
    return is_ordinary(handle) && fails("write") ? -1 : real(handle, bytes, size);
}

int fsync(int handle) {
    static const auto real = own(&fsync, "fsync");
    return is_ordinary(handle) && fails("fsync") ? -1 : real(handle);
}

int fdatasync(int handle) {
    static const auto real = own(&fdatasync, "fdatasync");
    return is_ordinary(handle) && fails("fdatasync") ? -1 : real(handle);
}

int close(int handle) {
    static const auto real = own(&close, "close");
    const bool failing = is_written(handle) && fails("close");
    const int error = errno;
    const int result = real(handle);
    if (failing)
        errno = error;
    return failing ? -1 : result;
}

int rename(const char *from, const char *to) noexcept {
    static const auto real = reinterpret_cast<int (*)(const char *, const char *)>(dlsym(RTLD_NEXT, "rename"));
    return fails("rename") ? -1 : real(from, to);
}

int renameat(int from_folder, const char *from, int to_folder, const char *to) noexcept {
    static const auto real =
        reinterpret_cast<int (*)(int, const char *, int, const char *)>(dlsym(RTLD_NEXT, "renameat"));
    return fails("rename") ? -1 : real(from_folder, from, to_folder, to);
}

int openat(int folder, const char *path, int flags, ...) {
    using Open = int (*)(int, const char *, int, ...);
    static const auto real = reinterpret_cast<Open>(dlsym(RTLD_NEXT, "openat"));
    std::va_list rest;
    va_start(rest, flags);
    const auto rights = static_cast<mode_t>((flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(rest, int) : 0);
    va_end(rest);
    return (flags & O_TMPFILE) == O_TMPFILE && fails("nameless") ? -1 : real(folder, path, flags, rights);
}

}  // extern "C"
