#include "freedict/meaning_order.h"

#include <algorithm>

#include "freedict/coarse_words.h"

namespace freedict {

namespace {

int group_of(Language language, const Entry &entry, qsizetype place) {
    if (place < entry.fixed)
        return 0;
    if (place < entry.fixed + entry.led)
        return 1;
    // The package has names in small letters too: China is one, china is not.
    const bool is_name = language == Language::english && entry.meanings[place].front().isUpper() &&
                         entry.headword == entry.headword.toLower();
    return is_name ? 3 : 2;
}

}  // namespace

QVector<PlacedMeaning> placed_meanings(const MeaningFeatures &features, Language language, const Entry &entry) {
    const QVector<Features> measured = features.of(language, entry.headword, entry.meanings);
    QVector<PlacedMeaning> all;
    for (qsizetype i = 0; i < measured.size(); ++i) {
        PlacedMeaning placed{.meaning = entry.meanings[i], .group = group_of(language, entry, i)};
        placed.coarse = is_coarse(placed.meaning, other(language));
        for (std::size_t feature = 0; feature < feature_count; ++feature) {
            placed.added[feature] = weights(language)[feature] * measured[i][feature];
            placed.score += placed.added[feature];
        }
        all.append(placed);
    }
    std::ranges::stable_sort(all, [](const PlacedMeaning &left, const PlacedMeaning &right) {
        if (left.coarse != right.coarse)
            return right.coarse;
        if (left.group != right.group)
            return left.group < right.group;
        return left.group != 0 && left.score > right.score;
    });
    return all;
}

void order_meanings(Lexicon &lexicon, Language language, const MeaningFeatures &features, const Steps &steps) {
    QVector<Entry> &entries = lexicon.in(language);
    for (qsizetype i = 0; i < entries.size(); ++i) {
        if (steps)
            steps(i, entries.size());
        const QVector<PlacedMeaning> placed = placed_meanings(features, language, entries[i]);
        for (qsizetype place = 0; place < placed.size(); ++place)
            entries[i].meanings[place] = placed[place].meaning;
    }
}

}  // namespace freedict
