#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>

/// A value of the file `file` of /proc/<process>, whose lines are "Name:   123 kB", in MiB; 0 when it is not there.
[[nodiscard]] double mebibytes(const QProcess &process, const QString &file, const QByteArray &name);
