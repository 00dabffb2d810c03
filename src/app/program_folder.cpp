#include "app/program_folder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <optional>

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
    link_dictionaries(QDir(places.installed_dictionaries), own);
    return own.absolutePath();
}
