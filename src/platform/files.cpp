#include "platform/files.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <new>

#include "platform/file_system.h"

using namespace Qt::StringLiterals;

namespace files {
namespace {

const QString no_permission = u"nincs jogosultság az írásához."_s;
const QString no_ordinary_file = u"nem közönséges fájl, hanem eszköz vagy csővezeték."_s;

/// As many links lead on to each other.
constexpr int most_links = 40;
/// Letters of a name that are kept in that of its copy.
constexpr qsizetype kept_of_name = 40;

QString reason_not_writable(FileTrouble trouble) {
    switch (trouble) {
        case FileTrouble::no_permission:
        case FileTrouble::folder_closed:
            return no_permission;
        case FileTrouble::no_space:
            return u"nincs elég hely a lemezen."_s;
        case FileTrouble::over_quota:
            return u"elfogyott az a hely, amelyet a felhasználó ezen a lemezen használhat (kvóta)."_s;
        case FileTrouble::read_only_disk:
            return u"a lemez csak olvasható."_s;
        case FileTrouble::input_output:
            return u"a lemez hibát jelzett, nem vette át az adatokat."_s;
        case FileTrouble::too_large:
            return u"ekkora fájl itt nem tárolható."_s;
        case FileTrouble::name_too_long:
            return u"túl hosszú a neve."_s;
        case FileTrouble::no_folder:
        case FileTrouble::missing:
            return u"a mappa nem létezik."_s;
        case FileTrouble::is_folder:
            return u"ez egy mappa neve."_s;
        case FileTrouble::not_a_file:
            return no_ordinary_file;
        case FileTrouble::links_in_a_circle:
            return u"a hivatkozások körbe vezetnek."_s;
        case FileTrouble::too_many_open:
            return u"túl sok fájl van nyitva."_s;
        case FileTrouble::in_use:
            return u"egy másik program használja."_s;
        case FileTrouble::other:
            break;
    }
    return u"írási hiba történt."_s;
}

Failure cannot_write(const QString &path, const QString &reason) {
    return {u"A(z) „%1” fájl nem írható: %2"_s.arg(QDir::toNativeSeparators(path), reason)};
}

/// Where `path` leads when it is a link; itself when it is none. Nothing when links lead to each other.
std::optional<QString> end_of_links(const QString &path) {
    QString place = path;
    for (int i = 0; i < most_links; ++i) {
        const QFileInfo here(place);
        if (!here.isSymbolicLink())
            return place;
        place = here.symLinkTarget();
    }
    return std::nullopt;
}

/// A place of the user's for a copy of the file `path`, which can be opened as that can.
QString place_of_copy(const QString &path) {
    const QFileInfo file(path);
    const QString suffix = file.suffix().isEmpty() ? QString() : u'.' + file.suffix().left(kept_of_name);
    const QString time = QDateTime::currentDateTime().toString(u"yyyy-MM-dd HH-mm-ss-zzz"_s);
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/zimbora/masolatok/"_s +
           file.completeBaseName().left(kept_of_name) + u' ' + time + suffix;
}

/// For a file in a folder that is closed to the user: it cannot be replaced whole, so what it holds is made safe first.
std::optional<Failure> write_in_place(const QString &path, const QByteArray &bytes) {
    const FileContent old = read_whole(path);
    if (const auto *failure = std::get_if<Failure>(&old))
        return *failure;
    const auto &old_bytes = std::get<QByteArray>(old);
    const QString copy = place_of_copy(path);
    if (auto failure = make_folder(QFileInfo(copy).path()))
        return failure;
    if (const auto trouble = file_system::replace(copy, old_bytes))
        return cannot_write(
            path,
            u"a mappájába nem írható új fájl, az eddigi tartalmáról pedig nem készült másolat, "
            "mert a(z) „%1” fájl nem írható: %2"_s.arg(QDir::toNativeSeparators(copy), reason_not_writable(*trouble)));
    const auto trouble = file_system::overwrite(path, bytes);
    if (trouble && file_system::overwrite(path, old_bytes)) {
        return cannot_write(path, reason_not_writable(*trouble) +
                                      u" A fájl megsérült; amit eddig tartalmazott, itt van meg: „%1”."_s.arg(
                                          QDir::toNativeSeparators(copy)));
    }
    QFile::remove(copy);
    return trouble ? std::optional(cannot_write(path, reason_not_writable(*trouble))) : std::nullopt;
}

/// The first folder above `path` that this user may not look into; empty when there is none.
QString closed_folder_above(const QString &path) {
    QString closed;
    QFileInfo place(path);
    while (place.path() != place.filePath()) {
        place.setFile(place.path());
        if (place.isDir() && !(place.isReadable() && place.isExecutable()))
            closed = place.filePath();
    }
    return closed;
}

}  // namespace

FileContent read_whole(const QString &path) {
    QFile file(path);
    if (file_system::open_ordinary(file))
        return cannot_read(path, reason_not_readable(path));
    try {
        QByteArray bytes = file.readAll();
        if (file.error() != QFileDevice::NoError)
            return cannot_read(path, u"olvasási hiba történt."_s);
        return bytes;
    } catch (const std::bad_alloc &) {
        return cannot_read(path, no_memory());
    }
}

std::optional<Failure> replace_whole(const QString &path, const QByteArray &bytes) {
    const auto place = end_of_links(path);
    if (!place)
        return cannot_write(path, reason_not_writable(FileTrouble::links_in_a_circle));
    const auto trouble = file_system::replace(*place, bytes);
    if (!trouble)
        return std::nullopt;
    if (trouble == FileTrouble::folder_closed)
        return write_in_place(*place, bytes);
    return cannot_write(path, reason_not_writable(*trouble));
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

bool is_taken(const QString &path) {
    const QFileInfo place(path);
    return place.exists() && !place.isDir();
}

Failure cannot_read(const QString &path, const QString &reason) {
    return {u"A(z) „%1” fájl nem olvasható: %2"_s.arg(QDir::toNativeSeparators(path), reason)};
}

QString reason_not_readable(const QString &path) {
    const QFileInfo place(path);
    if (!place.exists()) {
        const QString closed = closed_folder_above(place.absoluteFilePath());
        if (!closed.isEmpty())
            return u"nincs jogosultság a(z) „%1” mappa olvasásához."_s.arg(QDir::toNativeSeparators(closed));
        return reason_missing();
    }
    if (place.isDir())
        return u"ez egy mappa."_s;
    if (!place.isFile())
        return no_ordinary_file;
    if (!place.isReadable())
        return u"nincs jogosultság az olvasásához."_s;
    return u"a fájl nem nyitható meg."_s;
}

QString reason_missing() {
    return u"a fájl nem létezik."_s;
}

QString no_memory() {
    return u"túl nagy, nem fér a memóriába."_s;
}

}  // namespace files
