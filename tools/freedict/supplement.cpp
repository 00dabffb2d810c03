#include "freedict/supplement.h"

#include <QDir>
#include <QHash>
#include <algorithm>
#include <optional>

#include "freedict/dictd_files.h"
#include "platform/code_page.h"

namespace freedict {
namespace {

const QStringList &kinds() {
    static const QStringList list =
        QStringLiteral(
            "noun verb adjective adverb pronoun determiner preposition conjunction auxiliary numeral "
            "interjection abbreviation name phrase contraction suffix particle")
            .split(u' ');
    return list;
}

bool is_tidy(const QString &text) {
    return !text.isEmpty() && text == text.simplified();
}

/// What a dictionary file cannot hold, as the end of a sentence; nothing when it can hold all of the line.
std::optional<QString> unwritable(const QString &line) {
    for (const QChar sign : {QChar(u':'), QChar(u'÷')}) {
        if (line.contains(sign))
            return QStringLiteral("„%1” jel áll, amely a szótárfájl jeleit zavarná.").arg(sign);
    }
    const QString missing = code_page::first_missing(line);
    if (!missing.isEmpty())
        return QStringLiteral("a „%1” karakter nincs meg a windows-1250 kódlapon.").arg(missing);
    if (line != line.normalized(QString::NormalizationForm_C))
        return QStringLiteral("külön ékezettel írt betű áll.");
    return std::nullopt;
}

/// "to " begins verbs, and only them: the order and the search leave it out.
std::optional<QString> wrong_beginning(const QString &headword, const QString &kind, Language language) {
    if (language == Language::hungarian)
        return std::nullopt;
    const bool begins = headword.startsWith(verb_mark);
    if (begins && kind != u"verb" && kind != u"phrase")
        return QStringLiteral("„to ” kezdi a(z) „%1” címszót, pedig nem ige.").arg(headword);
    if (!begins && kind == u"verb")
        return QStringLiteral("hiányzik a „to ” a(z) „%1” ige elől.").arg(headword);
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
        return QStringLiteral("üres vagy hibásan írt jelentés áll („%1”).").arg(text);
    meaning.text = text;
    return meaning;
}

/// The entry of a line, or what is wrong with it as the end of a sentence.
std::variant<SupplementEntry, QString> entry_of(const QString &line, Language language) {
    const QStringList fields = line.split(QStringLiteral(" | "));
    if (fields.size() != 3)
        return QStringLiteral("nem „címszó | szófaj | jelentések” áll.");
    SupplementEntry entry{fields[0], fields[1], {}};
    if (!is_tidy(entry.headword) || entry.headword.contains(u'|'))
        return QStringLiteral("üres vagy hibásan írt címszó áll.");
    if (!kinds().contains(entry.kind))
        return QStringLiteral("ismeretlen szófaj áll („%1”).").arg(entry.kind);
    if (const auto wrong = unwritable(line))
        return *wrong;
    if (const auto wrong = wrong_beginning(entry.headword, entry.kind, language))
        return *wrong;
    for (const QString &text : fields[2].split(QStringLiteral("; "))) {
        auto meaning = meaning_of(text);
        if (const auto *wrong = std::get_if<QString>(&meaning))
            return *wrong;
        const auto &good = std::get<SupplementMeaning>(meaning);
        if (std::ranges::find(entry.meanings, good.text, &SupplementMeaning::text) != entry.meanings.end())
            return QStringLiteral("kétszer áll a(z) „%1” jelentés.").arg(good.text);
        entry.meanings.append(good);
    }
    return entry;
}

Failure wrong_line(const QString &file, qsizetype line, const QString &reason) {
    return {QStringLiteral("A(z) „%1” fájl %2. sorában %3").arg(file, QString::number(line), reason)};
}

/// Where each headword stands as each part of speech.
using Places = QHash<QString, QString>;

std::variant<QVector<SupplementEntry>, Failure> parsed(QByteArrayView bytes, const QString &file, Language language,
                                                       Places &places) {
    if (!bytes.isValidUtf8())
        return damaged(file, QStringLiteral("nem UTF-8 kódolású."));
    if (!bytes.isEmpty() && !bytes.endsWith('\n'))
        return damaged(file, QStringLiteral("az utolsó sora csonka."));
    QVector<SupplementEntry> entries;
    const QStringList lines = QString::fromUtf8(bytes).split(u'\n');
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (lines[i].isEmpty() || lines[i].startsWith(u'#'))
            continue;
        auto entry = entry_of(lines[i], language);
        if (const auto *reason = std::get_if<QString>(&entry))
            return wrong_line(file, i + 1, *reason);
        const auto &good = std::get<SupplementEntry>(entry);
        QString &place = places[good.headword + QStringLiteral(" | ") + good.kind];
        if (!place.isEmpty()) {
            return wrong_line(file, i + 1, QStringLiteral("olyan szócikk áll, amely már megvan: %1.").arg(place));
        }
        place = QStringLiteral("„%1” %2. sora").arg(file, QString::number(i + 1));
        entries.append(good);
    }
    return entries;
}

std::variant<QVector<SupplementEntry>, Failure> read_folder(const QDir &folder, Language language) {
    QVector<SupplementEntry> all;
    Places places;
    // By their names' bytes: the order of a system's language would differ.
    QStringList names = folder.entryList({QStringLiteral("*.txt")}, QDir::Files, QDir::NoSort);
    names.sort();
    if (names.isEmpty())
        return Failure{QStringLiteral("A(z) „%1” mappában nincs szótárkiegészítés.").arg(folder.path())};
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
    auto english = read_folder(QDir(folder + QStringLiteral("/english")), Language::english);
    if (const auto *failure = std::get_if<Failure>(&english))
        return *failure;
    auto hungarian = read_folder(QDir(folder + QStringLiteral("/hungarian")), Language::hungarian);
    if (const auto *failure = std::get_if<Failure>(&hungarian))
        return *failure;
    return Supplement{std::get<QVector<SupplementEntry>>(std::move(english)),
                      std::get<QVector<SupplementEntry>>(std::move(hungarian))};
}

}  // namespace freedict
