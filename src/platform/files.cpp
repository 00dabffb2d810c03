#include "platform/files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <algorithm>

namespace files {
namespace {

const QString no_permission = QStringLiteral("nincs jogosultság az írásához.");

QString reason_not_writable(const QSaveFile &file, const QString &path) {
    const QFileInfo place(path);
    if (place.isDir())
        return QStringLiteral("ez egy mappa neve.");
    if (!place.dir().exists())
        return QStringLiteral("a mappa nem létezik.");
    // Replacing a file needs both; the toolkit tells of either as of any other error.
    if (!QFileInfo(place.path()).isWritable() || (place.exists() && !place.isWritable()))
        return no_permission;
    switch (file.error()) {
        case QFileDevice::PermissionsError:
            return no_permission;
        case QFileDevice::ResourceError:
            return QStringLiteral("nincs elég hely a lemezen.");
        case QFileDevice::OpenError:
            return QStringLiteral("ide nem hozható létre fájl.");
        default:
            return QStringLiteral("írási hiba történt.");
    }
}

}  // namespace

FileContent read_whole(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return cannot_read(path, reason_not_readable(path));
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return cannot_read(path, QStringLiteral("olvasási hiba történt."));
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
    return Failure{QStringLiteral("A(z) „%1” fájl nem írható: %2")
                       .arg(QDir::toNativeSeparators(path), reason_not_writable(file, path))};
}

std::optional<Failure> make_folder(const QString &path) {
    if (QDir().mkpath(path))
        return std::nullopt;
    // The first on the way that is there already stands in the way.
    QString there = path;
    while (!QFileInfo::exists(there) && QFileInfo(there).path() != there)
        there = QFileInfo(there).path();
    QString reason = QStringLiteral("hiba történt.");
    if (!QFileInfo(there).isDir())
        reason = QStringLiteral("a helyén egy fájl van.");
    else if (!QFileInfo(there).isWritable())
        reason = no_permission;
    return Failure{QStringLiteral("A(z) „%1” mappa nem hozható létre: %2").arg(QDir::toNativeSeparators(path), reason)};
}

std::optional<Failure> remove(const QString &path) {
    const QFileInfo place(path);
    if (QFile::remove(path) || (!place.exists() && !place.isSymLink()))
        return std::nullopt;
    QString reason = QStringLiteral("egy másik program használja, vagy hiba történt.");
    if (place.isDir())
        reason = QStringLiteral("ez egy mappa.");
    else if (!QFileInfo(place.path()).isWritable())
        reason = QStringLiteral("nincs jogosultság a törléséhez.");
    else if (!place.isWritable())
        reason = QStringLiteral("írásvédett.");
    return Failure{QStringLiteral("A(z) „%1” fájl nem törölhető: %2").arg(QDir::toNativeSeparators(path), reason)};
}

bool exists(const QString &path) {
    return QFileInfo(path).isFile();
}

Failure cannot_read(const QString &path, const QString &reason) {
    return {QStringLiteral("A(z) „%1” fájl nem olvasható: %2").arg(QDir::toNativeSeparators(path), reason)};
}

QString reason_not_readable(const QString &path) {
    const QFileInfo place(path);
    if (!place.exists())
        return QStringLiteral("a fájl nem létezik.");
    if (place.isDir())
        return QStringLiteral("ez egy mappa.");
    if (!place.isReadable())
        return QStringLiteral("nincs jogosultság az olvasásához.");
    return QStringLiteral("a fájl nem nyitható meg.");
}

}  // namespace files
