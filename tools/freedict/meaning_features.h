#pragma once

#include <QStringList>
#include <QVector>
#include <array>
#include <functional>
#include <optional>

#include "freedict/sense_match.h"
#include "freedict/word_alignment.h"
#include "freedict/word_classes.h"
#include "freedict/word_family.h"
#include "freedict/word_net.h"
#include "freedict/word_pairs.h"

// What tells how good a translation of its headword a meaning is; docs/dictionary.md describes each.
namespace freedict {

enum Feature {
    forward_words,
    backward_words,
    forward_parts,
    backward_parts,
    together,
    together_given_head,
    shared,
    more_words,
    brackets,
    translations,
    rarest_word,
    rarest_part,
    letters,
    preverb,
    same_kind,
    hyphen,
    likeness,
    family,
    sense_mean,
    sense_best,
    word_class,
    count_in_texts,
    feature_count,
};

using Features = std::array<double, feature_count>;

/// Each feature's name as `zimbora-import --explain` shows it.
extern const std::array<const char *, feature_count> feature_names;

/// What is known of English beside the packages. What is missing is measured as 0.
struct OutsideKnowledge {
    std::optional<WordNet> net;
    std::optional<WordClasses> classes;
};

/// Measures the meanings of both directions. Keeps views of what it is given.
class MeaningFeatures final {
  public:
    /// Learns the alignments; `count_alignment` is called after each of the alignment_count.
    MeaningFeatures(
        const WordPairs &pairs, const OutsideKnowledge &outside, const std::function<void()> &count_alignment = [] {});

    static constexpr int alignment_count = 4;

    /// Of each meaning of a headword in `language`, in their order.
    [[nodiscard]] QVector<Features> of(Language language, const QString &headword, const QStringList &meanings) const;

  private:
    /// One direction's view of what both share.
    struct Direction {
        const Texts &heads;
        const Texts &meanings;
        const TranslationTable &forward_words;
        const TranslationTable &backward_words;
        const TranslationTable &forward_parts;
        const TranslationTable &backward_parts;
    };

    [[nodiscard]] Direction direction(Language language) const;
    void measure_together(const Direction &direction, int head, const QVector<int> &meanings,
                          QVector<Features> &features) const;
    void measure_outside(Language language, int head, const QVector<int> &meanings, QVector<Features> &features) const;

    const WordPairs &pairs_;
    const OutsideKnowledge &outside_;
    TranslationTable hungarian_words_;
    TranslationTable english_words_;
    TranslationTable hungarian_parts_;
    TranslationTable english_parts_;
    /// The texts that hold each part.
    QVector<QVector<int>> english_texts_;
    QVector<QVector<int>> hungarian_texts_;
    WordFamilies english_families_;
    WordFamilies hungarian_families_;
    std::optional<SenseMatch> senses_;
    /// Room for counting the parts of meanings in, for each direction; zero between two calls.
    mutable std::array<QVector<int>, 2> counts_;
};

}  // namespace freedict
