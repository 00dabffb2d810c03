#include "state/program_folder.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <algorithm>
#include <optional>
#include <variant>

#include "platform/files.h"

using namespace Qt::StringLiterals;

const QString english_hungarian_file = u"am.txt"_s;
const QString hungarian_english_file = u"ma.txt"_s;
const QString form_data_folder = u"alakok"_s;
const QString word_index_file = u"szavak.idx"_s;
const QString english_frequency_file = u"am.gyk"_s;
const QString hungarian_frequency_file = u"ma.gyk"_s;

namespace {

bool holds_a_dictionary(const QDir &folder) {
    return folder.exists(english_hungarian_file) || folder.exists(hungarian_english_file);
}

/// With what explains the forms of words. Made at the first start; a link whose target has moved with an update is made
/// anew.
void link_dictionaries(const QDir &from, const QDir &to) {
    for (const QString &name : {english_hungarian_file, hungarian_english_file, word_index_file, english_frequency_file,
                                hungarian_frequency_file, form_data_folder}) {
        const QFileInfo link(to.filePath(name));
        if (link.exists() || !from.exists(name))
            continue;
        if (link.isSymLink())
            QFile::remove(link.filePath());
        QFile::link(from.filePath(name), link.filePath());
    }
}

/// The bytes of the file `path`; nothing when it cannot be read.
std::optional<QByteArray> bytes_of(const QString &path) {
    const FileContent content = files::read_whole(path);
    const auto *bytes = std::get_if<QByteArray>(&content);
    return bytes ? std::optional(*bytes) : std::nullopt;
}

/// Makes `copy` a copy of the file `original`, unless it is one. A missing original leaves everything as it is.
void renew_copy(const QString &original, const QString &copy) {
    const std::optional<QByteArray> bytes = bytes_of(original);
    if (!bytes || bytes_of(copy) == bytes || !QFileInfo(copy).dir().mkpath(u"."_s))
        return;
    // Where the copy cannot be written, who reads it tells that it is missing.
    static_cast<void>(files::replace_whole(copy, *bytes));
}

/// Copied, because the help viewer opens no file whose link leads elsewhere.
void copy_help(const QDir &from, const QDir &to) {
    for (const QFileInfo &original : from.entryInfoList(QDir::Files))
        renew_copy(original.filePath(), to.filePath(original.fileName()));
}

/// Copies the files of the folder `from`; false when one of them could not be copied.
bool copy_files(const QDir &from, const QDir &to) {
    const QFileInfoList originals = from.entryInfoList(QDir::Files);
    return std::all_of(originals.begin(), originals.end(), [&to](const QFileInfo &original) {
        const std::optional<QByteArray> bytes = bytes_of(original.filePath());
        return bytes && !files::replace_whole(to.filePath(original.fileName()), *bytes);
    });
}

/// Removes what copies that were interrupted have left under names of the form `unfinished_name`. A younger one may be
/// that of another start, which is filling it right now.
void remove_interrupted(const QDir &own, QString unfinished_name) {
    const QStringList names{unfinished_name.replace(u'X', u'?')};
    const QDateTime long_ago = QDateTime::currentDateTime().addSecs(-3600);
    for (const QFileInfo &left : own.entryInfoList(names, QDir::Dirs | QDir::Hidden)) {
        if (left.lastModified() < long_ago)
            QDir(left.filePath()).removeRecursively();
    }
}

/// Gives the folder `own` its copy of the folder `name` of `installed`, all of it or nothing. What the user has deleted
/// in it stays deleted, so a folder that is there is not touched; it takes its name when its last file is in it.
void copy_folder_once(const QDir &installed, const QDir &own, const QString &name) {
    const QDir from(installed.filePath(name));
    if (own.exists(name) || from.isEmpty(QDir::Files))
        return;
    const QString unfinished_name = u'.' + name + u"-XXXXXX"_s;
    remove_interrupted(own, unfinished_name);
    QTemporaryDir unfinished(own.filePath(unfinished_name));
    if (!unfinished.isValid() || !copy_files(from, QDir(unfinished.path())))
        return;
    // A temporary folder is closed to everybody else.
    QFile::setPermissions(unfinished.path(), QFile::permissions(own.path()));
    if (QDir().rename(unfinished.path(), own.filePath(name)))
        unfinished.setAutoRemove(false);
}

/// Gives the folder `own` its copy of the word lists, once for all time: what the user has changed or deleted, and be
/// it the whole folder, neither is written over nor comes back. An empty hidden file says that they have been given.
void give_word_lists(const QDir &installed, const QDir &own) {
    const QString name = u"szószedetek"_s;
    const QString given = own.filePath(u".szószedetek-megvoltak"_s);
    if (QFileInfo::exists(given))
        return;
    copy_folder_once(installed, own, name);
    // Where it cannot be written, nothing could be copied either.
    if (own.exists(name))
        static_cast<void>(files::replace_whole(given, {}));
}

/// The folder that applies before the user's documents are looked at.
std::optional<QString> folder_that_is_there(const ProgramFolderPlaces &places) {
    if (!places.environment.isEmpty())
        return QDir(places.environment).absolutePath();
    if (holds_a_dictionary(QDir(places.executable)))
        return QDir(places.executable).absolutePath();
    if (!places.build_bin.isEmpty() && QDir(places.executable) == QDir(places.build_bin))
        return QDir(places.staged).absolutePath();
    if (places.installed_dictionaries.isEmpty())
        return QDir(places.executable).absolutePath();
    return std::nullopt;
}

QDir own_folder(const ProgramFolderPlaces &places) {
    return {QDir(places.documents).filePath(u"Zimbora"_s)};
}

}  // namespace

bool program_folder_is_missing(const ProgramFolderPlaces &places) {
    return !folder_that_is_there(places) && !own_folder(places).exists();
}

std::optional<Failure> program_folder_failure(const QString &folder) {
    const QFileInfo place(folder);
    if (place.isDir() && place.isReadable() && place.isExecutable())
        return std::nullopt;
    QString reason = place.isDir() ? u"nincs jogosultság az olvasásához."_s : files::reason_not_readable(folder);
    if (!place.exists() && reason == files::reason_missing())
        reason = u"a mappa nem létezik."_s;
    else if (place.exists() && !place.isDir())
        reason = u"a helyén egy fájl van."_s;
    return Failure{u"A program mappája, a(z) „%1” nem olvasható: %2"_s.arg(QDir::toNativeSeparators(folder), reason)};
}

QString find_program_folder(const ProgramFolderPlaces &places) {
    if (const auto ready = folder_that_is_there(places))
        return *ready;
    const QDir own = own_folder(places);
    QDir().mkpath(own.path());
    const QDir installed(places.installed_dictionaries);
    link_dictionaries(installed, own);
    // Its address is the text of the folder immediately followed by this one.
    copy_help(QDir(installed.filePath(u"help"_s)), QDir(own.absolutePath() + u"kavaro/help"_s));
    // So is that of the silence.
    renew_copy(installed.filePath(u"null.wav"_s), own.absolutePath() + u"null.wav"_s);
    for (const char16_t *folder : {u"hangok", u"zenemid", u"kavaro"})
        copy_folder_once(installed, own, QString::fromUtf16(folder));
    give_word_lists(installed, own);
    return own.absolutePath();
}
