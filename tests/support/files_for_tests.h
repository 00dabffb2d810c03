#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include "platform/code_page.h"

inline void write_file(const QString &path, const QByteArray &bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

inline QByteArray read_file(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no such file)");
}

/// `text` in the program's code page.
inline QByteArray cp1250(const char16_t *text) {
    return code_page::encode(QString::fromUtf16(text)).value();
}
