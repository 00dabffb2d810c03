#include <windows.h>

#include <QDir>
#include <QStandardPaths>
#include <array>

#include "platform/drive_c.h"

using namespace Qt::StringLiterals;

namespace {

/// Tries it: who may make files in the root of a drive depends on the machine, and an ordinary user mostly may not.
bool takes_files(const QString &folder) {
    std::array<wchar_t, MAX_PATH> name{};
    const std::wstring native = QDir::toNativeSeparators(folder + u'/').toStdWString();
    // It makes the file, too.
    if (GetTempFileNameW(native.c_str(), L"zbr", 0, name.data()) == 0)
        return false;
    return DeleteFileW(name.data()) != 0;
}

}  // namespace

QString DriveC::root_of_this_user() {
    const QString drive = u"C:"_s;
    if (takes_files(drive))
        return drive;
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/Zimbora/c"_s;
}
