#include "tools/built_dictionary.h"

#include "dictionary/dictionary_search.h"
#include "platform/code_page.h"
#include "platform/files.h"
#include "support/test_places.h"

using namespace Qt::StringLiterals;

BuiltDictionary::BuiltDictionary(const QString &file) {
    const FileContent content = files::read_whole(test_places::in_program(file));
    if (const auto *failure = std::get_if<Failure>(&content))
        qFatal("%s", qPrintable(failure->sentence));
    const QStringList lines = code_page::decode(std::get<QByteArray>(content)).split(u"\r\n"_s);
    for (qsizetype i = 1; i < lines.size(); ++i) {
        const qsizetype colon = lines[i].indexOf(u':');
        if (colon < 0)
            continue;
        const QString headword = lines[i].first(colon);
        entries_.insert(headword, lines[i].sliced(colon + 1).split(u'÷', Qt::SkipEmptyParts));
        const QString base = headword.left(headword.indexOf(u','));
        if (!first_of_base_.contains(base))
            first_of_base_.insert(base, headword);
        bare_.insert(keresőkulcs(QStringView(base)).toString());
        for (const QString &form : freedict::further_forms(headword, freedict::Language::english))
            forms_.insert(form);
    }
}

QStringList BuiltDictionary::meanings(const QString &word) const {
    if (entries_.contains(word) && !word.startsWith(u"to "))
        return entries_.value(word);
    return entries_.value(first_of_base_.value(word));
}

QStringList lines_of_list(const QString &path) {
    const FileContent content = files::read_whole(path);
    if (const auto *failure = std::get_if<Failure>(&content))
        qFatal("%s", qPrintable(failure->sentence));
    QStringList lines = QString::fromUtf8(std::get<QByteArray>(content)).split(u'\n', Qt::SkipEmptyParts);
    lines.removeIf([](const QString &line) { return line.startsWith(u'#'); });
    return lines;
}

QList<AcceptedMeanings> accepted_meanings(const QString &path) {
    QList<AcceptedMeanings> all;
    for (const QString &line : lines_of_list(path)) {
        const QStringList fields = line.split(u" | "_s);
        if (fields.size() != 2)
            qFatal("%s", qPrintable(path + u": "_s + line));
        all.append({fields[0], fields[1].split(u"; "_s)});
    }
    return all;
}
