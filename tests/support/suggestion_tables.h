#pragma once

#include <QFile>
#include <QString>
#include <QStringList>
#include <QVector>

using namespace Qt::StringLiterals;

/// A line of a table: a text and what is wanted for it, if anything.
struct TableLine {
    QString text;
    QString wanted;
};

/// The lines "text | wanted" of a file in tests/data/suggestions; "#" begins a comment.
inline QVector<TableLine> suggestion_table(const QString &name) {
    QFile file(u"" ZIMBORA_SUGGESTION_DATA "/"_s + name);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(file.fileName()));
    QVector<TableLine> lines;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts)) {
        if (!line.startsWith(u'#'))
            lines.append({line.section(u" | "_s, 0, 0), line.section(u" | "_s, 1)});
    }
    return lines;
}
