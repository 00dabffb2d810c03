#include "freedict/word_family.h"

#include <QSet>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace freedict {
namespace {

constexpr qsizetype shortest_stem = 3;
constexpr qsizetype longest_rest = 6;  // letters of a relative behind the stem

QStringList endings_of(Language language) {
    // The longest that fits comes off, so longer ones stand before their ends.
    static const QStringList english =
        u"fully ingly ation ition ness ment able ible tion sion ance ence less edly ful ing ion ity ive "
        "ily ous ial ed er or ly al ic ce cy y e s"_s.split(u' ');
    static const QStringList hungarian =
        u"hetetlen hetőség talan telen tlan tlen hető ható ságos séges ság ség tás tés ás és ós ős os "
        "es ös as i ít ul ül an en ban ben ó ő ik l t ál él"_s.split(u' ');
    return language == Language::english ? english : hungarian;
}

qsizetype beginning_of(Language language) {
    return language == Language::english ? 5 : 4;
}

QString without_preverb(const QString &word) {
    static const QStringList preverbs = u"meg el ki be le fel föl össze vissza át rá hozzá oda túl szét"_s.split(u' ');
    for (const QString &preverb : preverbs) {
        if (word.startsWith(preverb) && word.size() > preverb.size() + 2)
            return word.sliced(preverb.size());
    }
    return word;
}

QString stem_of(const QString &word, Language language) {
    for (const QString &ending : endings_of(language)) {
        if (word.endsWith(ending) && word.size() - ending.size() >= shortest_stem)
            return word.chopped(ending.size());
    }
    return word;
}

/// The word of a text of one word, verbs without "to "; empty for others.
QString only_word(const QString &text, Language language) {
    QStringList words = words_of(text, language);
    words.removeAll(verb_mark);
    return words.size() == 1 ? words.first() : QString();
}

}  // namespace

WordFamilies::WordFamilies(const Texts &heads, const Texts &meanings) : heads_(heads), meanings_(meanings) {
    for (int head = 0; head < heads.texts.size(); ++head) {
        const QString word = only_word(heads.texts[head], heads.language);
        if (!word.isEmpty())
            words_.append({word, head});
    }
    std::ranges::sort(words_);
}

QVector<int> WordFamilies::relatives(const QString &word, int head) const {
    const QString stem = stem_of(word, heads_.language);
    QVector<int> found;
    const auto first = std::ranges::lower_bound(words_, std::pair(stem, -1));
    for (auto other = first; other != words_.end() && other->first.startsWith(stem); ++other) {
        if (other->second != head && other->first.size() <= stem.size() + longest_rest)
            found.append(other->second);
    }
    return found;
}

QStringList WordFamilies::beginnings(int meaning) const {
    QStringList all;
    const qsizetype length = beginning_of(meanings_.language);
    for (const QString &word : words_of(meanings_.texts[meaning], meanings_.language)) {
        if (word == verb_mark)
            continue;
        all.append(word.left(length));
        if (meanings_.language == Language::hungarian)
            all.append(without_preverb(word).left(length));
    }
    return all;
}

QVector<double> WordFamilies::shares(int head, const QVector<int> &meaning_numbers) const {
    QVector<double> all(meaning_numbers.size(), 0);
    const QString word = only_word(heads_.texts[head], heads_.language);
    if (word.isEmpty())
        return all;
    QHash<QString, int> counts;
    const QVector<int> family = relatives(word, head);
    for (const int relative : family) {
        QSet<QString> found;
        for (const int meaning : heads_.partners[relative]) {
            for (const QString &beginning : beginnings(meaning))
                found.insert(beginning);
        }
        for (const QString &beginning : std::as_const(found))
            ++counts[beginning];
    }
    for (qsizetype i = 0; i < all.size(); ++i) {
        int best = 0;
        for (const QString &beginning : beginnings(meaning_numbers[i]))
            best = std::max(best, counts.value(beginning));
        all[i] = best / (static_cast<double>(family.size()) + 1.5);
    }
    return all;
}

}  // namespace freedict
