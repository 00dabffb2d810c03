#include "freedict/spelling_dictionary.h"

#include <QDir>
#include <QFile>
#include <hunspell/hunspell.hxx>

using namespace Qt::StringLiterals;

namespace freedict {
namespace {

QStringList names_of(Language language) {
    if (language == Language::hungarian)
        return {u"hu_HU"_s};
    return {u"en_GB"_s, u"en_US"_s};
}

}  // namespace

SpellingDictionary::SpellingDictionary() = default;
SpellingDictionary::SpellingDictionary(SpellingDictionary &&) noexcept = default;
SpellingDictionary &SpellingDictionary::operator=(SpellingDictionary &&) noexcept = default;
SpellingDictionary::~SpellingDictionary() = default;

std::variant<SpellingDictionary, Failure> SpellingDictionary::read(const QString &folder, Language language) {
    SpellingDictionary spelling;
    for (const QString &name : names_of(language)) {
        const QString base = QDir(folder).filePath(name);
        const FileContent rules = files::read_whole(base + u".aff"_s);
        if (const auto *failure = std::get_if<Failure>(&rules))
            return *failure;
        const FileContent words = files::read_whole(base + u".dic"_s);
        if (const auto *failure = std::get_if<Failure>(&words))
            return *failure;
        spelling.dictionaries_.push_back(std::make_unique<Hunspell>(QFile::encodeName(base + u".aff"_s).constData(),
                                                                    QFile::encodeName(base + u".dic"_s).constData()));
        for (const QByteArray &line : std::get<QByteArray>(words).split('\n')) {
            const QString word = QString::fromUtf8(line).section(u'/', 0, 0).trimmed();
            QStringList &spellings = spelling.capitals_[word.toLower()];
            if (word != word.toLower() && !spellings.contains(word))
                spellings.append(word);
        }
    }
    return spelling;
}

bool SpellingDictionary::accepts(const QString &word) const {
    const std::string utf8 = word.toStdString();
    for (const auto &dictionary : dictionaries_) {
        if (dictionary->spell(utf8))
            return true;
    }
    return false;
}

bool SpellingDictionary::first_accepts(const QString &word) const {
    return dictionaries_.front()->spell(word.toStdString());
}

QString SpellingDictionary::with_capitals(const QString &word) const {
    const auto decided = decided_.constFind(word);
    if (decided != decided_.constEnd())
        return *decided;
    QString result = word;
    if (!accepts(word)) {
        QStringList candidates = capitals_.value(word);
        if (candidates.size() > 1)
            candidates.clear();  // which of them, nobody can tell
        candidates.append(word.left(1).toUpper() + word.mid(1));
        for (const QString &candidate : std::as_const(candidates)) {
            if (candidate != word && accepts(candidate)) {
                result = candidate;
                break;
            }
        }
    }
    decided_.insert(word, result);
    return result;
}

std::variant<Spelling, Failure> read_spelling(const QString &folder) {
    auto english = SpellingDictionary::read(folder, Language::english);
    if (const auto *failure = std::get_if<Failure>(&english))
        return *failure;
    auto hungarian = SpellingDictionary::read(folder, Language::hungarian);
    if (const auto *failure = std::get_if<Failure>(&hungarian))
        return *failure;
    return Spelling{std::get<SpellingDictionary>(std::move(english)),
                    std::get<SpellingDictionary>(std::move(hungarian))};
}

}  // namespace freedict
