#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <QList>
#include <QProcess>
#include <QRectF>
#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QtTest/QTest>

#include "support/files_for_tests.h"
#include "support/printing.h"

using namespace Qt::StringLiterals;

/// A word on a page of a PDF file, in points from the paper's corner.
struct PdfWord {
    int page;
    QRectF place;
    QString text;
};

/// Under Wine: what `name` writes that is started by the script `starter` (windows/run_outside.sh), because nothing
/// tells a program of Windows when one of another system has ended.
inline QByteArray output_from_outside(const QString &starter, const QString &name, const QStringList &arguments) {
    const QTemporaryDir folder;
    const QString answer = folder.filePath(u"answer"_s);
    const auto has_failed = [&] { return QFile::exists(answer + u".failed"_s); };
    if (!QProcess::startDetached(starter, QStringList{answer, name} + arguments) ||
        !QTest::qWaitFor([&] { return QFile::exists(answer) || has_failed(); }, 30000) || has_failed())
        ADD_FAILURE() << name.toStdString() << " failed: " << read_file(answer + u".failed"_s).toStdString();
    return read_file(answer);
}

/// What the program `name` writes when it reads a PDF file.
inline QByteArray output_of(const QString &name, const QStringList &arguments) {
    const QString starter = qEnvironmentVariable("ZIMBORA_TEST_STARTER");
    if (!starter.isEmpty())
        return output_from_outside(starter, name, arguments);
    QProcess process;
    process.start(name, arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        ADD_FAILURE() << name.toStdString() << " failed: " << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput();
}

/// The text of a PDF file as one searches and copies it; a form feed ends each page.
inline QString pdf_text(const QString &file) {
    return QString::fromUtf8(output_of(u"pdftotext"_s, {u"-layout"_s, file, u"-"_s}));
}

inline QList<PdfWord> pdf_words(const QString &file) {
    const QString marked = QString::fromUtf8(output_of(u"pdftotext"_s, {u"-bbox"_s, file, u"-"_s}));
    static const QRegularExpression tag(
        uR"re(<page |<word xMin="([\d.-]+)" yMin="([\d.-]+)" xMax="([\d.-]+)" yMax="([\d.-]+)">([^<]*)<)re"_s);
    QList<PdfWord> words;
    int page = 0;
    auto tags = tag.globalMatch(marked);
    while (tags.hasNext()) {
        const auto one = tags.next();
        if (one.captured(5).isEmpty())
            ++page;
        else
            words.append({page,
                          {QPointF(one.captured(1).toDouble(), one.captured(2).toDouble()),
                           QPointF(one.captured(3).toDouble(), one.captured(4).toDouble())},
                          one.captured(5)});
    }
    return words;
}

/// A line of what is told of a PDF file: "Title", "Pages", "Page size"...
inline QString pdf_info(const QString &file, const QString &line) {
    for (const QString &one : QString::fromUtf8(output_of(u"pdfinfo"_s, {file})).split(u'\n')) {
        if (one.startsWith(line + u':'))
            return one.mid(line.size() + 1).trimmed();
    }
    return {};
}

/// Whether the fonts of a PDF file are in it and know their letters; the number of fonts.
inline int pdf_fonts(const QString &file) {
    const QStringList lines = QString::fromUtf8(output_of(u"pdffonts"_s, {file})).trimmed().split(u'\n').mid(2);
    for (const QString &line : lines) {
        // … embedded, subset, unicode, object number, generation
        const QStringList columns = line.simplified().split(u' ');
        EXPECT_EQ(columns.value(columns.size() - 5), u"yes"_s) << line.toStdString();
        EXPECT_EQ(columns.value(columns.size() - 3), u"yes"_s) << line.toStdString();
    }
    return static_cast<int>(lines.size());
}
