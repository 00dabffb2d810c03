#include "freedict/word_parts.h"

#include <algorithm>
#include <array>

namespace freedict {
namespace {

constexpr qsizetype shortest_part = 3;
constexpr qsizetype longest_ending = 6;

/// Endings of English words and what stands there in the base form.
constexpr std::array<std::pair<QStringView, QStringView>, 12> english_endings{{{u"'s", u""},
                                                                               {u"ies", u"y"},
                                                                               {u"es", u""},
                                                                               {u"es", u"e"},
                                                                               {u"s", u""},
                                                                               {u"ied", u"y"},
                                                                               {u"ed", u""},
                                                                               {u"ed", u"e"},
                                                                               {u"ing", u""},
                                                                               {u"ing", u"e"},
                                                                               {u"er", u""},
                                                                               {u"est", u""}}};

/// Verbs are split at these although they are short.
bool is_short_preverb(QStringView part) {
    return part == u"el" || part == u"ki" || part == u"be" || part == u"le";
}

}  // namespace

void WordParts::add(const QStringList &words) {
    for (const QString &word : words)
        ++counts_[word];
    if (words.size() == 1 || (words.size() == 2 && words[0] == verb_mark))
        headwords_.insert(words.last());
}

QStringList WordParts::parts_of(const QString &word) const {
    if (language_ == Language::english)
        return {without_ending(word)};
    return split(without_ending(word));
}

QString WordParts::without_ending(const QString &word) const {
    if (headwords_.contains(word))
        return word;
    if (const auto form = forms_.constFind(word); form != forms_.constEnd())
        return *form;
    if (language_ == Language::english) {
        for (const auto &[ending, base] : english_endings) {
            if (!word.endsWith(ending))
                continue;
            const QString stem = word.chopped(ending.size()) + base.toString();
            if (headwords_.contains(stem))
                return stem;
            const qsizetype length = stem.size();
            if (length > shortest_part && stem[length - 1] == stem[length - 2] && headwords_.contains(stem.chopped(1)))
                return stem.chopped(1);
        }
        return word;
    }
    const qsizetype shortest = std::max(shortest_part, word.size() - longest_ending);
    for (qsizetype length = word.size() - 1; length >= shortest; --length) {
        QString stem = word.first(length);
        if (headwords_.contains(stem))
            return stem;
        if (stem.endsWith(u'á') || stem.endsWith(u'é')) {
            stem.back() = stem.endsWith(u'á') ? u'a' : u'e';
            if (headwords_.contains(stem))
                return stem;
        }
    }
    return word;
}

QStringList WordParts::split(const QString &word) const {
    int best = count_of(word);
    qsizetype at = 0;
    for (qsizetype length = 2; length + shortest_part <= word.size(); ++length) {
        const QString first = word.first(length);
        const QString second = word.sliced(length);
        if ((length < shortest_part && !is_short_preverb(first)) || !headwords_.contains(second))
            continue;
        if (const int weaker = std::min(count_of(first), count_of(second)); weaker > best) {
            best = weaker;
            at = length;
        }
    }
    return at == 0 ? QStringList(word) : split(word.first(at)) + split(word.sliced(at));
}

}  // namespace freedict
