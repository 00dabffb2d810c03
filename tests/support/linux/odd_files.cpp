#include "support/odd_files.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <QFile>

using namespace Qt::StringLiterals;

UnreadableFile::UnreadableFile(const QString &path) : path_(path) {
    // The memory of a process opens, but its first page cannot be read.
    if (!QFile::link(u"/proc/self/mem"_s, path_))
        qFatal("cannot make %s", qPrintable(path_));
}

UnreadableFile::~UnreadableFile() {
    QFile::remove(path_);
}

void set_folder_time(const QString &path, const QDateTime &time) {
    const timespec when{time.toSecsSinceEpoch(), 0};
    const timespec both[] = {when, when};
    if (utimensat(AT_FDCWD, QFile::encodeName(path).constData(), both, 0) != 0)
        qFatal("cannot set the time of %s", qPrintable(path));
}
