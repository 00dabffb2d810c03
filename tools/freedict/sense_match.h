#pragma once

#include <QVector>
#include <utility>

#include "freedict/word_net.h"
#include "freedict/word_pairs.h"

namespace freedict {

/// Tells whether a Hungarian text means what an English word usually means: its other English translations are compared
/// with the words that belong to each meaning of the English word. Keeps views of all it is given.
class SenseMatch final {
  public:
    SenseMatch(const WordPairs &pairs, const WordNet &net);

    struct Match {
        /// The mean relation of the other translations to the meanings, these by their frequency; its logarithm.
        double mean;
        /// The relation of the best of the other translations instead.
        double best;
    };
    [[nodiscard]] Match match(int english, int hungarian) const;

    /// How often the English word was met in texts, as a noun or the like or as a verb.
    [[nodiscard]] int count(int english) const { return counts_[english]; }

  private:
    const WordPairs &pairs_;
    const WordNet &net_;
    /// Of each English text: its number as a word of the net, without "to "; its meanings; its count.
    QVector<int> words_;
    QVector<QVector<WordNet::Sense>> senses_;
    QVector<int> counts_;
};

}  // namespace freedict
