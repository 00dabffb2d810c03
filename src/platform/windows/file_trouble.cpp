#include "platform/windows/file_trouble.h"

namespace {

/// Some headers of the system lack it.
constexpr DWORD disk_quota_exceeded = 1295;

}  // namespace

FileTrouble trouble_of(DWORD number) {
    switch (number) {
        case ERROR_ACCESS_DENIED:
            return FileTrouble::no_permission;
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL:
            return FileTrouble::no_space;
        case disk_quota_exceeded:
        case ERROR_NOT_ENOUGH_QUOTA:
            return FileTrouble::over_quota;
        case ERROR_WRITE_PROTECT:
            return FileTrouble::read_only_disk;
        case ERROR_CRC:
        case ERROR_IO_DEVICE:
        case ERROR_WRITE_FAULT:
        case ERROR_NOT_READY:
        case ERROR_GEN_FAILURE:
            return FileTrouble::input_output;
        case ERROR_FILE_TOO_LARGE:
            return FileTrouble::too_large;
        case ERROR_FILENAME_EXCED_RANGE:
        case ERROR_BUFFER_OVERFLOW:
            return FileTrouble::name_too_long;
        case ERROR_PATH_NOT_FOUND:
        case ERROR_DIRECTORY:
        case ERROR_BAD_NETPATH:
            return FileTrouble::no_folder;
        case ERROR_FILE_NOT_FOUND:
            return FileTrouble::missing;
        case ERROR_TOO_MANY_OPEN_FILES:
            return FileTrouble::too_many_open;
        case ERROR_SHARING_VIOLATION:
        case ERROR_LOCK_VIOLATION:
        case ERROR_USER_MAPPED_FILE:
        case ERROR_UNABLE_TO_REMOVE_REPLACED:
            return FileTrouble::in_use;
        default:
            return FileTrouble::other;
    }
}
