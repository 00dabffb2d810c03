#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLibrary>

#include "forms/morphology.h"

using namespace Qt::StringLiterals;

std::unique_ptr<szóelemző> load_hunspell(const QString &rules, const QString &words) {
    const QDir bin(QCoreApplication::applicationDirPath());
    // Beside the executable in a build, in the folder of libraries in an installation.
    for (const QString &folder : {u"plugins"_s, u"" ZIMBORA_PLUGINS_FROM_BIN ""_s}) {
        QLibrary library(bin.filePath(folder + u"/zimbora_hunspell.so"_s));
        const auto make = reinterpret_cast<MorphologyMaker>(library.resolve(morphology_maker));
        if (make != nullptr) {
            return std::unique_ptr<szóelemző>(
                make(QFile::encodeName(rules).constData(), QFile::encodeName(words).constData()));
        }
    }
    return nullptr;
}
