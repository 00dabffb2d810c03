#include "freedict/supplement.h"

#include <QDir>
#include <QHash>
#include <algorithm>
#include <optional>

#include "freedict/dictd_files.h"
#include "platform/code_page.h"

using namespace Qt::StringLiterals;

namespace freedict {
namespace {

const QStringList &kinds() {
    static const QStringList list =
        u"noun verb adjective adverb pronoun determiner preposition conjunction auxiliary numeral "
        "interjection abbreviation name phrase contraction suffix particle"_s.split(u' ');
    return list;
}

bool is_tidy(const QString &text) {
    return !text.isEmpty() && text == text.simplified();
}

/// What a dictionary file cannot hold, as the end of a sentence; nothing when it can hold all of the line.
std::optional<QString> unwritable(const QString &line) {
    for (const QChar sign : {QChar(u':'), QChar(u'÷')}) {
        if (line.contains(sign))
            return u"„%1” jel áll, amely a szótárfájl jeleit zavarná."_s.arg(sign);
    }
    const QString missing = code_page::first_missing(line);
    if (!missing.isEmpty())
        return u"a „%1” karakter nincs meg a windows-1250 kódlapon."_s.arg(missing);
    if (line != line.normalized(QString::NormalizationForm_C))
        return u"külön ékezettel írt betű áll."_s;
    return std::nullopt;
}

/// "to " begins verbs, and only them: the order and the search leave it out.
std::optional<QString> wrong_beginning(const QString &headword, const QString &kind, Language language) {
    if (language == Language::hungarian)
        return std::nullopt;
    const bool begins = headword.startsWith(verb_mark);
    if (begins && kind != u"verb" && kind != u"phrase")
        return u"„to ” kezdi a(z) „%1” címszót, pedig nem ige."_s.arg(headword);
    if (!begins && kind == u"verb")
        return u"hiányzik a „to ” a(z) „%1” ige elől."_s.arg(headword);
    return std::nullopt;
}

std::variant<SupplementMeaning, QString> meaning_of(QString text) {
    SupplementMeaning meaning;
    if (text.endsWith(u" <<")) {
        meaning.back = SupplementMeaning::Back::in_front;
        text.chop(3);
    } else if (text.endsWith(u" <")) {
        meaning.back = SupplementMeaning::Back::yes;
        text.chop(2);
    }
    if (!is_tidy(text) || text.contains(u'<') || text.contains(u';') || text.contains(u'|'))
        return u"üres vagy hibásan írt jelentés áll („%1”)."_s.arg(text);
    meaning.text = text;
    return meaning;
}

/// The entry of a line, or what is wrong with it as the end of a sentence.
std::variant<SupplementEntry, QString> entry_of(const QString &line, Language language) {
    const QStringList fields = line.split(u" | "_s);
    if (fields.size() != 3)
        return u"nem „címszó | szófaj | jelentések” áll."_s;
    SupplementEntry entry{fields[0], fields[1], {}};
    if (!is_tidy(entry.headword) || entry.headword.contains(u'|'))
        return u"üres vagy hibásan írt címszó áll."_s;
    if (!kinds().contains(entry.kind))
        return u"ismeretlen szófaj áll („%1”)."_s.arg(entry.kind);
    if (const auto wrong = unwritable(line))
        return *wrong;
    if (const auto wrong = wrong_beginning(entry.headword, entry.kind, language))
        return *wrong;
    for (const QString &text : fields[2].split(u"; "_s)) {
        auto meaning = meaning_of(text);
        if (const auto *wrong = std::get_if<QString>(&meaning))
            return *wrong;
        const auto &good = std::get<SupplementMeaning>(meaning);
        if (std::ranges::find(entry.meanings, good.text, &SupplementMeaning::text) != entry.meanings.end())
            return u"kétszer áll a(z) „%1” jelentés."_s.arg(good.text);
        entry.meanings.append(good);
    }
    return entry;
}

Failure wrong_line(const QString &file, qsizetype line, const QString &reason) {
    return {u"A(z) „%1” fájl %2. sorában %3"_s.arg(file, QString::number(line), reason)};
}

/// Where each headword stands as each part of speech.
using Places = QHash<QString, QString>;

std::variant<QVector<SupplementEntry>, Failure> parsed(QByteArrayView bytes, const QString &file, Language language,
                                                       Places &places) {
    if (!bytes.isValidUtf8())
        return damaged(file, u"nem UTF-8 kódolású."_s);
    if (!bytes.isEmpty() && !bytes.endsWith('\n'))
        return damaged(file, u"az utolsó sora csonka."_s);
    QVector<SupplementEntry> entries;
    const QStringList lines = QString::fromUtf8(bytes).split(u'\n');
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (lines[i].isEmpty() || lines[i].startsWith(u'#'))
            continue;
        auto entry = entry_of(lines[i], language);
        if (const auto *reason = std::get_if<QString>(&entry))
            return wrong_line(file, i + 1, *reason);
        const auto &good = std::get<SupplementEntry>(entry);
        QString &place = places[good.headword + u" | "_s + good.kind];
        if (!place.isEmpty()) {
            return wrong_line(file, i + 1, u"olyan szócikk áll, amely már megvan: %1."_s.arg(place));
        }
        place = u"„%1” %2. sora"_s.arg(file, QString::number(i + 1));
        entries.append(good);
    }
    return entries;
}

std::variant<QVector<SupplementEntry>, Failure> read_folder(const QDir &folder, Language language) {
    QVector<SupplementEntry> all;
    Places places;
    // By their names' bytes: the order of a system's language would differ.
    QStringList names = folder.entryList({u"*.txt"_s}, QDir::Files, QDir::NoSort);
    names.sort();
    if (names.isEmpty())
        return Failure{u"A(z) „%1” mappában nincs szótárkiegészítés."_s.arg(folder.path())};
    for (const QString &name : std::as_const(names)) {
        const QString path = folder.filePath(name);
        const FileContent content = files::read_whole(path);
        if (const auto *failure = std::get_if<Failure>(&content))
            return *failure;
        auto entries = parsed(std::get<QByteArray>(content), path, language, places);
        if (const auto *failure = std::get_if<Failure>(&entries))
            return *failure;
        all += std::get<QVector<SupplementEntry>>(entries);
    }
    return all;
}

}  // namespace

std::variant<QVector<SupplementEntry>, Failure> parse_supplement(QByteArrayView bytes, const QString &file,
                                                                 Language language) {
    Places places;
    return parsed(bytes, file, language, places);
}

std::variant<Supplement, Failure> read_supplement(const QString &folder) {
    auto english = read_folder(QDir(folder + u"/english"_s), Language::english);
    if (const auto *failure = std::get_if<Failure>(&english))
        return *failure;
    auto hungarian = read_folder(QDir(folder + u"/hungarian"_s), Language::hungarian);
    if (const auto *failure = std::get_if<Failure>(&hungarian))
        return *failure;
    return Supplement{std::get<QVector<SupplementEntry>>(std::move(english)),
                      std::get<QVector<SupplementEntry>>(std::move(hungarian))};
}

}  // namespace freedict
