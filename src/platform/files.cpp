#include "platform/files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace files {
namespace {

const QString no_permission = u"nincs jogosultság az írásához."_s;

QString reason_not_writable(const QSaveFile &file, const QString &path) {
    const QFileInfo place(path);
    if (place.isDir())
        return u"ez egy mappa neve."_s;
    if (!place.dir().exists())
        return u"a mappa nem létezik."_s;
    // Replacing a file needs both; the toolkit tells of either as of any other error.
    if (!QFileInfo(place.path()).isWritable() || (place.exists() && !place.isWritable()))
        return no_permission;
    switch (file.error()) {
        case QFileDevice::PermissionsError:
            return no_permission;
        case QFileDevice::ResourceError:
            return u"nincs elég hely a lemezen."_s;
        case QFileDevice::OpenError:
            return u"ide nem hozható létre fájl."_s;
        default:
            return u"írási hiba történt."_s;
    }
}

}  // namespace

FileContent read_whole(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return cannot_read(path, reason_not_readable(path));
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return cannot_read(path, u"olvasási hiba történt."_s);
    return bytes;
}

std::optional<Failure> replace_whole(const QString &path, const QByteArray &bytes) {
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        // A disk takes what fits; only what does not fit any more fails, and tells why.
        qint64 taken = file.write(bytes);
        if (taken >= 0 && taken < bytes.size())
            taken += std::max<qint64>(0, file.write(bytes.constData() + taken, bytes.size() - taken));
        // Without the flush, commit() of Qt 6.4 would not see that the last buffer did not fit onto the disk.
        if (taken == bytes.size() && file.flush() && file.commit())
            return std::nullopt;
    }
    return Failure{
        u"A(z) „%1” fájl nem írható: %2"_s.arg(QDir::toNativeSeparators(path), reason_not_writable(file, path))};
}

std::optional<Failure> make_folder(const QString &path) {
    if (QDir().mkpath(path))
        return std::nullopt;
    // The first on the way that is there already stands in the way.
    QString there = path;
    while (!QFileInfo::exists(there) && QFileInfo(there).path() != there)
        there = QFileInfo(there).path();
    QString reason = u"hiba történt."_s;
    if (!QFileInfo(there).isDir())
        reason = u"a helyén egy fájl van."_s;
    else if (!QFileInfo(there).isWritable())
        reason = no_permission;
    return Failure{u"A(z) „%1” mappa nem hozható létre: %2"_s.arg(QDir::toNativeSeparators(path), reason)};
}

std::optional<Failure> remove(const QString &path) {
    const QFileInfo place(path);
    if (QFile::remove(path) || (!place.exists() && !place.isSymLink()))
        return std::nullopt;
    QString reason = u"egy másik program használja, vagy hiba történt."_s;
    if (place.isDir())
        reason = u"ez egy mappa."_s;
    else if (!QFileInfo(place.path()).isWritable())
        reason = u"nincs jogosultság a törléséhez."_s;
    else if (!place.isWritable())
        reason = u"írásvédett."_s;
    return Failure{u"A(z) „%1” fájl nem törölhető: %2"_s.arg(QDir::toNativeSeparators(path), reason)};
}

bool exists(const QString &path) {
    return QFileInfo(path).isFile();
}

Failure cannot_read(const QString &path, const QString &reason) {
    return {u"A(z) „%1” fájl nem olvasható: %2"_s.arg(QDir::toNativeSeparators(path), reason)};
}

QString reason_not_readable(const QString &path) {
    const QFileInfo place(path);
    if (!place.exists())
        return u"a fájl nem létezik."_s;
    if (place.isDir())
        return u"ez egy mappa."_s;
    if (!place.isReadable())
        return u"nincs jogosultság az olvasásához."_s;
    return u"a fájl nem nyitható meg."_s;
}

}  // namespace files
