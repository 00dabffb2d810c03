#include "freedict/capitals.h"

#include <algorithm>

namespace freedict {
namespace {

constexpr qsizetype shortest_word = 4;

/// The spellings of the supplement's headwords with capitals that are not known in small letters too.
QHash<QString, QString> capitals_of(const Supplement &supplement, const SpellingDictionary &spelling) {
    QHash<QString, QString> capitals;
    for (const SupplementEntry &entry : supplement.english) {
        const QString small = entry.headword.toLower();
        if (small != entry.headword && !spelling.first_accepts(small))
            capitals.insert(small, entry.headword);
    }
    return capitals;
}

QString word_with_capitals(const QString &word, const QHash<QString, QString> &supplement,
                           const SpellingDictionary &spelling) {
    if (const auto found = supplement.constFind(word); found != supplement.constEnd())
        return *found;
    if (word == u"i" || word.startsWith(u"i'"))
        return u'I' + word.sliced(1);
    return word.size() < shortest_word ? word : spelling.with_capitals(word);
}

QString word_by_word(const QString &text, const QHash<QString, QString> &supplement,
                     const SpellingDictionary &spelling) {
    QString result;
    QString word;
    for (qsizetype i = 0; i <= text.size(); ++i) {
        const QChar character = i < text.size() ? text[i] : QChar();
        if (character.isLetterOrNumber() || (character == u'\'' && !word.isEmpty())) {
            word += character;
            continue;
        }
        const bool has_number = std::ranges::any_of(word, [](QChar letter) { return letter.isNumber(); });
        result += word.isEmpty() || has_number ? word : word_with_capitals(word, supplement, spelling);
        word.clear();
        if (i < text.size())
            result += character;
    }
    return result;
}

QHash<QString, QString> english_texts_with_capitals(const Lexicon &lexicon, const SpellingDictionary &spelling,
                                                    const Supplement &supplement) {
    QHash<QString, QString> names;
    const QHash<QString, QString> of_supplement = capitals_of(supplement, spelling);
    const auto add = [&](const QString &text) {
        if (names.contains(text))
            return;
        const QString other = of_supplement.value(text, word_by_word(text, of_supplement, spelling));
        if (other != text)
            names.insert(text, other);
    };
    for (const Entry &entry : lexicon.english)
        add(entry.headword);
    for (const Entry &entry : lexicon.hungarian) {
        for (const QString &meaning : entry.meanings)
            add(meaning);
    }
    return names;
}

/// Hungarian names of the supplement; the package's are in small letters too (kína).
QHash<QString, QString> hungarian_names(const SpellingDictionary &spelling, const Supplement &supplement) {
    QHash<QString, QString> names;
    const auto add = [&](const QString &text) {
        const QString small = text.toLower();
        if (small != text && !spelling.first_accepts(small))
            names.insert(small, text);
    };
    for (const SupplementEntry &entry : supplement.english) {
        for (const SupplementMeaning &meaning : entry.meanings)
            add(meaning.text);
    }
    for (const SupplementEntry &entry : supplement.hungarian)
        add(entry.headword);
    return names;
}

}  // namespace

QHash<QString, QString> texts_with_capitals(const Lexicon &lexicon, Language language, const Spelling &spelling,
                                            const Supplement &supplement) {
    if (language == Language::hungarian)
        return hungarian_names(spelling.hungarian, supplement);
    return english_texts_with_capitals(lexicon, spelling.english, supplement);
}

}  // namespace freedict
