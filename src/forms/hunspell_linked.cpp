#include <QDir>
#include <QFileInfo>

#include "forms/morphology.h"

using namespace Qt::StringLiterals;

extern "C" szóelemző *zimbora_make_morphology(const char *rules, const char *words);

namespace {

/// Only a path in this form is read as UTF-8 by the library; others would lose their accents. It begins with its drive.
QByteArray long_path(const QString &path) {
    return (u"\\\\?\\"_s + QDir::toNativeSeparators(QDir::cleanPath(QFileInfo(path).absoluteFilePath()))).toUtf8();
}

}  // namespace

std::unique_ptr<szóelemző> load_hunspell(const QString &rules, const QString &words) {
    return std::unique_ptr<szóelemző>(
        zimbora_make_morphology(long_path(rules).constData(), long_path(words).constData()));
}
