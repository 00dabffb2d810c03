#include "freedict/dictionary_text.h"

#include <algorithm>
#include <utility>

#include "dictionary/dictionary_search.h"
#include "platform/code_page.h"

using namespace Qt::StringLiterals;

namespace freedict {
namespace {

constexpr QChar after_headword(u':');
constexpr QChar after_meaning(u'÷');
constexpr char after_meaning_byte = '\xF7';
constexpr QByteArrayView line_end("\r\n");

/// The text with what both sides of an entry need mended.
QString mended(const QString &text, const Dictionary &dictionary) {
    // A letter with a separate accent is joined first, so that the mends see every letter in one form.
    QString result = text.normalized(QString::NormalizationForm_C);
    result.replace(u'`', u'\'');
    if (dictionary.circumflex_is_double_acute)
        result.replace(u'û', u'ű').replace(u'ô', u'ő').replace(u'Û', u'Ű').replace(u'Ô', u'Ő');
    return result;
}

/// A colon would end the headword where it stands.
QString without_colon(QString text) {
    return text.replace(u':', u" –"_s);
}

FileContent encoded(const QString &line, const QString &name) {
    const std::optional<QByteArray> bytes = code_page::encode(line);
    if (bytes)
        return *bytes;
    return Failure{u"A(z) %1 nem írható ki: a „%2” karakter nincs meg a windows-1250 kódlapon."_s.arg(
        name, code_page::first_missing(line))};
}

FileContent line_of(const Entry &entry, const Dictionary &dictionary) {
    const QString name = u"%1 szótár „%2” szócikke"_s.arg(dictionary.title, entry.headword);
    QString line = without_colon(mended(entry.headword, dictionary)) + after_headword;
    for (const QString &raw : entry.meanings) {
        const QString meaning = mended(raw, dictionary);
        if (meaning.contains(after_meaning)) {
            return Failure{u"A(z) %1 nem írható ki: a(z) „%2” jelentésben „÷” jel áll."_s.arg(name, raw)};
        }
        line += meaning + after_meaning;
    }
    return encoded(line, name);
}

FileContent notice_of(const Package &package, const Dictionary &dictionary) {
    QString notice =
        u"A FreeDict (freedict.org) %1 szótára a Zimbora szótárfájljává alakítva, az elírt ékezetek javításával. "
        "%2, kiadása %3, %4 címszó. Felhasználási feltételei – %5"_s.arg(
            dictionary.title, package.name, package.edition, QString::number(package.stated_headwords),
            package.licence);
    notice = without_colon(notice).replace(after_meaning, u'/').simplified();
    return encoded(notice, u"%1 szótár első sora"_s.arg(dictionary.title));
}

}  // namespace

QVector<Entry> mended_entries(const Package &package, const Dictionary &dictionary) {
    QVector<Entry> entries = package.entries;
    for (Entry &entry : entries) {
        entry.headword = without_colon(mended(entry.headword, dictionary));
        for (QString &meaning : entry.meanings)
            meaning = mended(meaning, dictionary);
    }
    return entries;
}

FileContent dictionary_text(const Package &package, const Dictionary &dictionary, const Steps &steps) {
    FileContent notice = notice_of(package, dictionary);
    if (std::holds_alternative<Failure>(notice))
        return notice;
    QVector<QByteArray> lines;
    lines.reserve(package.entries.size());
    for (const Entry &entry : package.entries) {
        if (steps)
            steps(lines.size(), package.entries.size());
        FileContent line = line_of(entry, dictionary);
        if (std::holds_alternative<Failure>(line))
            return line;
        lines.append(std::get<QByteArray>(std::move(line)));
    }
    // QByteArrayView compares as memcmp does: byte by byte, unsigned.
    std::ranges::stable_sort(lines, {}, [](const QByteArray &line) { return keresőkulcs(QByteArrayView(line)); });
    QByteArray text = std::get<QByteArray>(std::move(notice)).append(line_end);
    for (const QByteArray &line : lines)
        text.append(line).append(line_end);
    return text;
}

Counts counts_of(const QVector<Entry> &entries) {
    Counts counts{.entries = entries.size()};
    for (const Entry &entry : entries)
        counts.meanings += entry.meanings.size();
    return counts;
}

Counts counts_in(QByteArrayView text) {
    const QByteArrayView lines = text.sliced(text.indexOf(line_end) + line_end.size());
    Counts counts{.entries = lines.count(line_end)};
    for (qsizetype start = 0, end = 0; (end = lines.indexOf(line_end, start)) >= 0; start = end + line_end.size()) {
        const QByteArrayView line = lines.sliced(start, end - start);
        counts.meanings += line.sliced(line.indexOf(':') + 1).count(after_meaning_byte);
    }
    return counts;
}

std::optional<Failure> difference(const Package &package, const Counts &written) {
    const Counts read = counts_of(package.entries);
    if (written.entries != package.stated_headwords) {
        return Failure{u"A(z) „%1” leírása szerint %2 címszava van, de %3 szócikke írható ki."_s.arg(
            package.name, QString::number(package.stated_headwords), QString::number(written.entries))};
    }
    if (written != read) {
        return Failure{u"A(z) „%1” %2 szócikkéből és %3 jelentéséből %4 szócikk és %5 jelentés maradt."_s.arg(
            package.name, QString::number(read.entries), QString::number(read.meanings),
            QString::number(written.entries), QString::number(written.meanings))};
    }
    return std::nullopt;
}

}  // namespace freedict
