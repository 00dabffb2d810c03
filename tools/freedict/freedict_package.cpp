#include "freedict/freedict_package.h"

#include <QDir>
#include <QStringDecoder>
#include <algorithm>
#include <optional>

#include "freedict/dictd_files.h"

using namespace Qt::StringLiterals;

namespace freedict {
namespace {

std::optional<QString> text_of(QByteArrayView utf8) {
    if (!utf8.isValidUtf8())
        return std::nullopt;
    // A mark of the byte order is a character like any other here: dropping it would hide a damaged entry.
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    return QString(decoder(utf8));
}

bool is_meaningful(const QString &text) {
    return !QStringView(text).trimmed().isEmpty() && std::none_of(text.begin(), text.end(), [](QChar character) {
        return character.category() == QChar::Other_Control;
    });
}

/// The headword and the pronunciation of an entry's first line; empty when one of them is not there.
std::pair<QString, QString> taken_apart(const QString &line) {
    if (!line.endsWith(u'/'))
        return {};
    const qsizetype pronunciation = QStringView(line).chopped(1).lastIndexOf(u" /");
    if (pronunciation < 0)
        return {};
    return {line.left(pronunciation), line.sliced(pronunciation + 2).chopped(1)};
}

/// Takes the numbers off an entry's meanings; false when they are not 1, 2, 3, …
bool take_numbers_off(QStringList &meanings) {
    for (qsizetype i = 0; i < meanings.size(); ++i) {
        const QString number = QString::number(i + 1) + u". "_s;
        if (!meanings[i].startsWith(number))
            return false;
        meanings[i].remove(0, number.size());
    }
    return true;
}

std::optional<Entry> entry_of(QByteArrayView definition) {
    std::optional<QString> text = text_of(definition);
    if (!text || !text->endsWith(u'\n'))
        return std::nullopt;
    text->chop(1);
    QStringList meanings = text->split(u'\n');
    const auto [headword, pronunciation] = taken_apart(meanings.takeFirst());
    if (meanings.size() > 1 && !take_numbers_off(meanings))
        return std::nullopt;
    if (meanings.isEmpty() || !is_meaningful(headword) || !std::all_of(meanings.begin(), meanings.end(), is_meaningful))
        return std::nullopt;
    return Entry{headword, meanings, pronunciation};
}

bool names_licence(const QString &text) {
    return text.contains(u"General Public License", Qt::CaseInsensitive);
}

QString licence_of(const QStringList &lines) {
    QString licence;
    for (qsizetype i = lines.indexOf(u"Availability:"_s) + 1; i > 0 && i < lines.size(); ++i) {
        const bool new_section = !lines[i].isEmpty() && !lines[i].startsWith(u' ');
        const bool new_paragraph = lines[i].startsWith(u"    ");
        if (new_section || (new_paragraph && names_licence(licence)))
            break;
        licence = (licence + u' ' + lines[i]).simplified();
    }
    return names_licence(licence) ? licence : QString();
}

/// What stands behind `label` in the first line that begins with it; empty when no line does.
QString labelled(const QStringList &lines, QStringView label) {
    const auto line = std::find_if(lines.begin(), lines.end(), [&](const QString &l) { return l.startsWith(label); });
    return line == lines.end() ? QString() : line->sliced(label.size()).simplified();
}

/// A package without entries yet; nothing when the description lacks something.
std::optional<Package> described_by(QByteArrayView description) {
    const std::optional<QString> text = text_of(description);
    if (!text)
        return std::nullopt;
    const QStringList lines = text->split(u'\n');
    Package package;
    package.name = lines.first().simplified();
    package.edition = labelled(lines, u"Edition:");
    package.licence = licence_of(lines);
    const QString size = labelled(lines, u"Size:");
    const QString unit = u" headwords"_s;
    bool is_number = false;
    package.stated_headwords = size.chopped(size.endsWith(unit) ? unit.size() : 0).toLongLong(&is_number);
    if (package.name.isEmpty() || package.edition.isEmpty() || package.licence.isEmpty() || !is_number)
        return std::nullopt;
    return package;
}

PackageResult package_of(const QVector<Definition> &definitions, const QString &name) {
    const auto description = std::find_if(definitions.begin(), definitions.end(), [](const Definition &definition) {
        return definition.index_word == "00databaseinfo";
    });
    if (description == definitions.end())
        return damaged(name, u"nincs benne a csomag leírása (00databaseinfo)."_s);
    std::optional<Package> package = described_by(description->text);
    if (!package) {
        return damaged(name,
                       u"a csomag leírásából (00databaseinfo) hiányzik a név, a kiadás, a címszavak "
                       "száma vagy a GNU GPL engedély."_s);
    }
    return *std::move(package);
}

}  // namespace

PackageResult parse_package(QByteArrayView index, QByteArrayView data, const QString &name, const Steps &steps) {
    const auto found = definitions(index, data, name + u".index"_s);
    if (const auto *failure = std::get_if<Failure>(&found))
        return *failure;
    const auto &all = std::get<QVector<Definition>>(found);
    const QString data_file = name + u".dict.dz"_s;
    PackageResult result = package_of(all, data_file);
    auto *package = std::get_if<Package>(&result);
    if (package == nullptr)
        return result;
    package->entries.reserve(all.size());
    for (qsizetype i = 0; i < all.size(); ++i) {
        if (steps)
            steps(i, all.size());
        if (all[i].index_word.startsWith("00database"))
            continue;
        std::optional<Entry> entry = entry_of(all[i].text);
        if (!entry) {
            return damaged(data_file, u"értelmezhetetlen a(z) „%1” szócikk (az index %2. sora)."_s.arg(
                                          QString::fromUtf8(all[i].index_word), QString::number(i + 1)));
        }
        package->entries.append(*std::move(entry));
    }
    return result;
}

PackageResult read_package(const QString &folder, const QString &name, const Steps &steps) {
    const QDir place(folder);
    const FileContent index = files::read_whole(place.filePath(name + u".index"_s));
    if (const auto *failure = std::get_if<Failure>(&index))
        return *failure;
    const QString data_file = name + u".dict.dz"_s;
    const FileContent packed = files::read_whole(place.filePath(data_file));
    if (const auto *failure = std::get_if<Failure>(&packed))
        return *failure;
    const FileContent data = unpacked(std::get<QByteArray>(packed), data_file);
    if (const auto *failure = std::get_if<Failure>(&data))
        return *failure;
    return parse_package(std::get<QByteArray>(index), std::get<QByteArray>(data), name, steps);
}

}  // namespace freedict
