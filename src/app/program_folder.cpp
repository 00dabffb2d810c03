#include "app/program_folder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <optional>
#include <variant>

#include "platform/files.h"

namespace {

bool holds_a_dictionary(const QDir &folder) {
    return folder.exists(english_hungarian_file) || folder.exists(hungarian_english_file);
}

/// Made at the first start; a link whose dictionary has moved with an update is made anew.
void link_dictionaries(const QDir &from, const QDir &to) {
    for (const QString &name : {english_hungarian_file, hungarian_english_file}) {
        const QFileInfo link(to.filePath(name));
        if (link.exists() || !from.exists(name))
            continue;
        if (link.isSymLink())
            QFile::remove(link.filePath());
        QFile::link(from.filePath(name), link.filePath());
    }
}

/// Copied, because the help viewer opens no file whose link leads elsewhere; a copy that is another one than the
/// installed file is made anew.
void copy_help(const QDir &from, const QDir &to) {
    for (const QFileInfo &original : from.entryInfoList(QDir::Files)) {
        const FileContent wanted = files::read_whole(original.filePath());
        const auto *bytes = std::get_if<QByteArray>(&wanted);
        const QString copy = to.filePath(original.fileName());
        const FileContent present = files::read_whole(copy);
        const auto *old_bytes = std::get_if<QByteArray>(&present);
        if (!bytes || (old_bytes && *old_bytes == *bytes) || !to.mkpath(QStringLiteral(".")))
            continue;
        // Where the copy cannot be written, the viewer tells that it is missing.
        static_cast<void>(files::replace_whole(copy, *bytes));
    }
}

/// The folder that applies before the user's documents are looked at.
std::optional<QString> folder_that_is_there(const ProgramFolderPlaces &places) {
    if (!places.environment.isEmpty())
        return QDir(places.environment).absolutePath();
    if (holds_a_dictionary(QDir(places.executable)))
        return QDir(places.executable).absolutePath();
    if (!places.build_bin.isEmpty() && QDir(places.executable) == QDir(places.build_bin))
        return QDir(places.staged).absolutePath();
    return std::nullopt;
}

QDir own_folder(const ProgramFolderPlaces &places) {
    return {QDir(places.documents).filePath(QStringLiteral("Zimbora"))};
}

}  // namespace

bool program_folder_is_missing(const ProgramFolderPlaces &places) {
    return !folder_that_is_there(places) && !own_folder(places).exists();
}

QString find_program_folder(const ProgramFolderPlaces &places) {
    if (const auto ready = folder_that_is_there(places))
        return *ready;
    const QDir own = own_folder(places);
    QDir().mkpath(own.path());
    const QDir installed(places.installed_dictionaries);
    link_dictionaries(installed, own);
    // Its address is the text of the folder immediately followed by this one.
    copy_help(QDir(installed.filePath(QStringLiteral("help"))),
              QDir(own.absolutePath() + QStringLiteral("kavaro/help")));
    return own.absolutePath();
}
