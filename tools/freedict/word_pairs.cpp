#include "freedict/word_pairs.h"

#include <QSet>
#include <algorithm>

#include "freedict/word_parts.h"

namespace freedict {
namespace {

/// Gives each different text a number.
int number_in(Texts &texts, const QString &text) {
    const QString base = base_form(text, texts.language);
    const auto [place, is_new] = [&] {
        const auto found = texts.numbers.constFind(base);
        return found == texts.numbers.constEnd() ? std::pair(texts.numbers.insert(base, int(texts.texts.size())), true)
                                                 : std::pair(texts.numbers.find(base), false);
    }();
    if (is_new) {
        texts.texts.append(base);
        texts.partners.append(QVector<int>());
    }
    return *place;
}

class Numbers final {
  public:
    int of(const QString &word) {
        const auto found = numbers_.constFind(word);
        if (found != numbers_.constEnd())
            return *found;
        return *numbers_.insert(word, static_cast<int>(numbers_.size()));
    }
    [[nodiscard]] int count() const { return static_cast<int>(numbers_.size()); }

  private:
    QHash<QString, int> numbers_;
};

void take_apart(Texts &texts, const QVector<Entry> &entries) {
    QVector<QStringList> all;
    WordParts parts(texts.language);
    for (const QString &text : std::as_const(texts.texts)) {
        all.append(words_of(text, texts.language));
        parts.add(all.last());
    }
    for (const Entry &entry : entries) {
        const QString base = words_of(entry.headword, texts.language).value(1);
        for (const QString &form : further_forms(entry.headword, texts.language))
            parts.add_form(form,
                           entry.headword.startsWith(verb_mark) ? base : base_form(entry.headword, texts.language));
    }
    Numbers words;
    Numbers stems;
    texts.verb_mark_word = words.of(verb_mark);
    stems.of(verb_mark);
    for (const QStringList &text : std::as_const(all)) {
        WordNumbers of_words;
        WordNumbers of_parts;
        for (const QString &word : text) {
            of_words.append(words.of(word));
            for (const QString &part : word == verb_mark ? QStringList(word) : parts.parts_of(word))
                of_parts.append(stems.of(part));
        }
        texts.words.append(of_words);
        texts.parts.append(of_parts);
    }
    texts.word_count = words.count();
    texts.part_count = stems.count();
}

void count_pairs(Texts &texts) {
    texts.word_pairs.fill(0, texts.word_count);
    texts.part_pairs.fill(0, texts.part_count);
    for (qsizetype i = 0; i < texts.texts.size(); ++i) {
        const int pairs = static_cast<int>(texts.partners[i].size());
        for (const int word : std::as_const(texts.words[i]))
            texts.word_pairs[word] += pairs;
        for (const int part : std::as_const(texts.parts[i]))
            texts.part_pairs[part] += pairs;
    }
}

}  // namespace

WordPairs word_pairs(const QVector<Entry> &english, const QVector<Entry> &hungarian) {
    WordPairs all;
    QSet<std::pair<int, int>> seen;
    const auto add = [&](const QString &first, const QString &second) {
        const std::pair pair(number_in(all.english, first), number_in(all.hungarian, second));
        if (seen.contains(pair))
            return;
        seen.insert(pair);
        all.pairs.append(pair);
        all.english.partners[pair.first].append(pair.second);
        all.hungarian.partners[pair.second].append(pair.first);
    };
    for (const Entry &entry : english) {
        for (const QString &meaning : entry.meanings)
            add(entry.headword, meaning);
    }
    for (const Entry &entry : hungarian) {
        for (const QString &meaning : entry.meanings)
            add(meaning, entry.headword);
    }
    take_apart(all.english, english);
    take_apart(all.hungarian, hungarian);
    count_pairs(all.english);
    count_pairs(all.hungarian);
    return all;
}

}  // namespace freedict
