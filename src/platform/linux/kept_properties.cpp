#include "platform/linux/kept_properties.h"

#include <sys/xattr.h>
#include <unistd.h>

#include <QByteArray>
#include <QByteArrayList>

namespace {

constexpr const char *access_list = "system.posix_acl_access";
constexpr mode_t all_rights = 07777;
constexpr mode_t group_rights = 070;

/// True when the group was kept.
bool keep_owner(const struct stat &from, int to) {
    struct stat made {};
    if (fstat(to, &made) != 0)
        return false;
    if (made.st_uid == from.st_uid && made.st_gid == from.st_gid)
        return true;
    return fchown(to, from.st_uid, from.st_gid) == 0 || made.st_gid == from.st_gid ||
           fchown(to, static_cast<uid_t>(-1), from.st_gid) == 0;
}

/// Of what a call that fills a buffer of a given size has to say; called with no buffer it tells the size.
template <typename Call>
QByteArray all_of(const Call &call) {
    const ssize_t size = call(nullptr, 0);
    if (size <= 0)
        return {};
    QByteArray bytes(size, '\0');
    const ssize_t got = call(bytes.data(), static_cast<size_t>(size));
    return bytes.first(got > 0 ? got : 0);
}

void keep_attributes(int from, int to, bool group_kept) {
    const QByteArray names = all_of([from](char *bytes, size_t size) { return flistxattr(from, bytes, size); });
    for (const QByteArray &name : names.split('\0')) {
        if (name.isEmpty() || (name == access_list && !group_kept))
            continue;
        const QByteArray value =
            all_of([&](char *bytes, size_t size) { return fgetxattr(from, name.constData(), bytes, size); });
        static_cast<void>(fsetxattr(to, name.constData(), value.constData(), static_cast<size_t>(value.size()), 0));
    }
}

}  // namespace

void keep_properties(const struct stat &from_state, int from, int to) {
    const bool group_kept = keep_owner(from_state, to);
    mode_t rights = from_state.st_mode & all_rights;
    if (!group_kept)
        rights = (rights & ~group_rights) | ((rights & 07) << 3);
    // The folder may have given it one.
    static_cast<void>(fremovexattr(to, access_list));
    static_cast<void>(fchmod(to, rights));
    keep_attributes(from, to, group_kept);
}
