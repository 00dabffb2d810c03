#include "platform/positioned_read.h"

#include <io.h>
#include <windows.h>

#include <algorithm>
#include <limits>

qint64 read_at(int handle, qint64 from, char *to, qint64 most) {
    void *file = reinterpret_cast<void *>(_get_osfhandle(handle));
    OVERLAPPED place{};
    place.Offset = static_cast<DWORD>(from & 0xffffffff);
    place.OffsetHigh = static_cast<DWORD>(from >> 32);
    const auto wanted = static_cast<DWORD>(std::min<qint64>(most, std::numeric_limits<DWORD>::max()));
    // A read at a place moves the file's position, too.
    LARGE_INTEGER position{};
    if (SetFilePointerEx(file, {}, &position, FILE_CURRENT) == 0)
        return -1;
    DWORD got = 0;
    const bool read = ReadFile(file, to, wanted, &got, &place) != 0 || GetLastError() == ERROR_HANDLE_EOF;
    const bool put_back = SetFilePointerEx(file, position, nullptr, FILE_BEGIN) != 0;
    return read && put_back ? static_cast<qint64>(got) : -1;
}
