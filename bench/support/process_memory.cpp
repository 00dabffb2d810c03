#include "support/process_memory.h"

#include <QFile>

double mebibytes(const QProcess &process, const QString &file, const QByteArray &name) {
    QFile lines(QStringLiteral("/proc/%1/%2").arg(process.processId()).arg(file));
    if (!lines.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : lines.readAll().split('\n')) {
        if (line.startsWith(name + ':'))
            return line.sliced(name.size() + 1).simplified().split(' ').first().toDouble() / 1024;
    }
    return 0;
}
