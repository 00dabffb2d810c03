#include "freedict/typing_errors.h"

#include <QSet>
#include <algorithm>
#include <optional>

#include "freedict/word_pairs.h"

using namespace Qt::StringLiterals;

namespace freedict {
namespace {

constexpr qsizetype shortest_word = 4;

/// True when one letter within, put in, taken out, changed or exchanged with the next, makes the other text of it. At
/// the beginning, at the end, and with hyphens and blanks, it would often be another word or another spelling.
bool are_neighbours(const QString &first, const QString &second) {
    if (first.size() > second.size())
        return are_neighbours(second, first);
    if (second.size() - first.size() > 1 || first == second)
        return false;
    const auto [one, other] = std::ranges::mismatch(first, second);
    const qsizetype at = one - first.begin();
    if (at == 0 || at + 1 >= first.size() || !second[at].isLetter() || !first[at].isLetter())
        return false;
    if (first.size() < second.size())
        return first.sliced(at) == second.sliced(at + 1);
    if (first.sliced(at + 1) == second.sliced(at + 1))
        return true;
    return at + 1 < first.size() && first[at] == second[at + 1] && first[at + 1] == second[at] &&
           first.sliced(at + 2) == second.sliced(at + 2);
}

/// Rare words, other spellings and endings of words that look like typing errors and are none.
bool is_right_though_rare(const QString &text) {
    static const QSet<QString> right{
        u"-szor"_s,    u"-ször"_s,       u"hippogryff"_s,  u"impellor"_s,    u"knobly"_s,    u"kotow"_s,
        u"minever"_s,  u"nightshift"_s,  u"nurd"_s,        u"nurseling"_s,   u"pretorian"_s, u"stogy"_s,
        u"tich"_s,     u"to blatter"_s,  u"to blether"_s,  u"to dumfound"_s, u"to fuze"_s,   u"to indorse"_s,
        u"to kotow"_s, u"to schmoose"_s, u"to slubber"_s,  u"to wabble"_s,   u"to whump"_s,  u"to womp"_s,
        u"trist"_s,    u"unbiassed"_s,   u"vortiginous"_s, u"wabble"_s,      u"yoghourt"_s,  u"szipuzik"_s};
    return right.contains(text);
}

bool is_known(const QString &word, const SpellingDictionary &spelling) {
    return spelling.accepts(word) || spelling.with_capitals(word) != word;
}

bool all_known(const QString &text, Language language, const SpellingDictionary &spelling) {
    return std::ranges::all_of(words_of(text, language),
                               [&](const QString &word) { return word == verb_mark || is_known(word, spelling); });
}

/// Where a letter stands three times running within a word; −1 when it does nowhere.
qsizetype three_letters_in(const QString &text) {
    for (qsizetype i = 0; i + 2 < text.size(); ++i) {
        const bool three = text[i].isLetter() && text[i] == text[i + 1] && text[i] == text[i + 2];
        const bool more = (i > 0 && text[i - 1].isLetter()) && (i + 3 < text.size() && text[i + 3].isLetter());
        if (three && more)
            return i;
    }
    return -1;
}

std::optional<QString> without_third_letter(const QString &text, Language language,
                                            const SpellingDictionary &spelling) {
    const qsizetype at = three_letters_in(text);
    if (at < 0)
        return std::nullopt;
    for (const qsizetype gone : {1, 2}) {
        QString shorter = text;
        shorter.remove(at, gone);
        if (all_known(shorter, language, spelling))
            return shorter;
    }
    return std::nullopt;
}

/// The texts that are one letter away and share a translation.
QStringList neighbours_of(const Texts &texts, const Texts &others, int text) {
    QStringList found;
    for (const int translation : texts.partners[text]) {
        for (const int sibling : others.partners[translation]) {
            const QString &right = texts.texts[sibling];
            if (are_neighbours(texts.texts[text], right) && !found.contains(right))
                found.append(right);
        }
    }
    return found;
}

/// The only one of them whose words are all known.
std::optional<QString> only_known(QStringList texts, Language language, const SpellingDictionary &spelling) {
    texts.removeIf([&](const QString &text) { return !all_known(text, language, spelling); });
    return texts.size() == 1 ? std::optional(texts.first()) : std::nullopt;
}

std::optional<Mend> mend_of_signs(const QString &text, Language language) {
    const QString simple = text.simplified();
    if (simple != text)
        return Mend{language, text, simple, Mend::Reason::blanks};
    if (text.endsWith(u'(') && text.count(u'(') == 2 && !text.contains(u')'))
        return Mend{language, text, text.chopped(1) + u')', Mend::Reason::bracket};
    return std::nullopt;
}

std::optional<Mend> mend_of_letters(const Texts &texts, const Texts &others, int text,
                                    const SpellingDictionary &spelling) {
    const QString &wrong = texts.texts[text];
    if (is_right_though_rare(wrong))
        return std::nullopt;
    const QStringList neighbours = neighbours_of(texts, others, text);
    if (neighbours.isEmpty() && three_letters_in(wrong) < 0)
        return std::nullopt;
    const QStringList words = words_of(wrong, texts.language);
    const bool suspicious = std::ranges::any_of(
        words, [&](const QString &word) { return word.size() >= shortest_word && !is_known(word, spelling); });
    if (!suspicious)
        return std::nullopt;
    if (const auto mended = without_third_letter(wrong, texts.language, spelling))
        return Mend{texts.language, wrong, *mended, Mend::Reason::three_letters};
    if (const auto mended = only_known(neighbours, texts.language, spelling))
        return Mend{texts.language, wrong, *mended, Mend::Reason::neighbour};
    return std::nullopt;
}

}  // namespace

QVector<Mend> typing_errors(const Lexicon &lexicon, const Spelling *spelling) {
    QVector<Mend> mends;
    const WordPairs pairs = word_pairs(lexicon.english, lexicon.hungarian);
    for (const Language language : {Language::english, Language::hungarian}) {
        const Texts &texts = language == Language::english ? pairs.english : pairs.hungarian;
        const Texts &others = language == Language::english ? pairs.hungarian : pairs.english;
        for (int text = 0; text < texts.texts.size(); ++text) {
            if (const auto mend = mend_of_signs(texts.texts[text], language))
                mends.append(*mend);
            else if (spelling == nullptr)
                continue;
            else if (const auto letters = mend_of_letters(texts, others, text, spelling->of(language)))
                mends.append(*letters);
        }
    }
    return mends;
}

QHash<QString, QString> names_of(const QVector<Mend> &mends, Language language) {
    QHash<QString, QString> names;
    for (const Mend &mend : mends) {
        if (mend.language == language)
            names.insert(mend.text, mend.mended);
    }
    return names;
}

}  // namespace freedict
