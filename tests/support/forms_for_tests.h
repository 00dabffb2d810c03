#pragma once

#include <QCoreApplication>
#include <QDir>
#include <QSet>
#include <QTemporaryDir>
#include <algorithm>
#include <memory>

#include "forms/form_reader.h"
#include "state/program_folder.h"
#include "support/headwords.h"

using namespace Qt::StringLiterals;

/// The headwords of a dictionary of this build, as an analyser asks about them.
inline címszókérdések questions_about(const char *dictionary) {
    auto all = std::make_shared<QSet<QString>>();
    QStringList with_forms;
    for (const QByteArray &bytes : headwords_of(read_file(test_places::in_program(QString::fromLatin1(dictionary))))) {
        const QString headword = code_page::decode(bytes);
        const qsizetype comma = headword.indexOf(u", "_s);
        all->insert(headword);
        if (comma > 0) {
            all->insert(headword.first(comma));
            with_forms.append(headword);
        }
    }
    return {.van = [all](QStringView headword) { return all->contains(headword.toString()); },
            .alakosak = [with_forms] { return with_forms; }};
}

/// The staged folder of the data that explain forms.
inline QString forms_folder() {
    return test_places::in_program(form_data_folder);
}

/// One row of a list of forms: "form | base | explanation".
struct FormRow {
    QString form;
    QString base;
    QString explanation;
};

inline QList<FormRow> rows_of(const QString &file) {
    QList<FormRow> rows;
    for (const QByteArray &line : read_file(u"" ZIMBORA_FORM_LISTS "/"_s + file).split('\n')) {
        const QStringList fields = QString::fromUtf8(line).split(u" | "_s);
        if (!line.startsWith('#') && fields.size() == 3)
            rows.append({fields[0], fields[1], fields[2]});
    }
    return rows;
}

/// What an analyser makes of a list, in words for who reads a failure.
struct FormFigures {
    qsizetype rows = 0;
    int first = 0;
    int among = 0;
    QStringList not_first;
    QStringList missing;
    QStringList explained_otherwise;
};

inline QString in_one_line(alakelemző &reader, const FormRow &row, const std::vector<olvasat> &readings) {
    QString line = row.base + u" ("_s + row.explanation + u") <>"_s;
    for (const olvasat &reading : readings)
        line += u" | "_s + reader.sor(row.form, reading);
    return line;
}

inline FormFigures figures_of(alakelemző &reader, const QList<FormRow> &rows) {
    FormFigures figures;
    figures.rows = rows.size();
    for (const FormRow &row : rows) {
        const std::vector<olvasat> readings = reader.olvasatok(row.form);
        const auto has_base = [&](const olvasat &reading) { return reading.alapalak == row.base; };
        const auto is_row = [&](const olvasat &reading) {
            return has_base(reading) && reading.magyarázat == row.explanation;
        };
        const QString line = in_one_line(reader, row, readings);
        const bool first = !readings.empty() && has_base(readings.front());
        const bool among = std::ranges::any_of(readings, has_base);
        figures.first += first ? 1 : 0;
        figures.among += among ? 1 : 0;
        if (!among)
            figures.missing.append(line);
        else if (!first)
            figures.not_first.append(line);
        if (among && std::ranges::none_of(readings, is_row))
            figures.explained_otherwise.append(line);
    }
    return figures;
}

/// A copy of the staged data that a test may damage.
class CopiedForms {
  public:
    CopiedForms() {
        for (const QString &name : QDir(forms_folder()).entryList(QDir::Files)) {
            if (!QFile::copy(forms_folder() + u'/' + name, path(name)))
                qFatal("cannot copy %s", qPrintable(name));
        }
    }

    [[nodiscard]] QString folder() const { return root_.path(); }
    [[nodiscard]] QString path(const QString &name) const { return root_.filePath(name); }

  private:
    QTemporaryDir root_;
};
