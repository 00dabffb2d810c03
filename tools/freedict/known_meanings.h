#pragma once

#include <QVector>
#include <bitset>
#include <variant>

#include "freedict/lexicon.h"
#include "freedict/meaning_features.h"

// Lists of words with the meanings that may stand first in their entries: UTF-8, a word a line, comments with "#":
//
//     headword " | " accepted meaning "; " accepted meaning …
//
// tools/freedict/known_meanings/ has those that the weights of the order are fitted to.
namespace freedict {

struct KnownMeanings {
    QString headword;
    QStringList accepted;
};

/// The words of a list; a failure that names the file and the line when one is not as above.
[[nodiscard]] std::variant<QVector<KnownMeanings>, Failure> read_known_meanings(const QString &path);

/// The meanings that a known word has in the dictionary.
struct Choice {
    QString headword;
    QVector<Features> features;
    QVector<bool> accepted;
};

/// The choices of those words that the lexicon has with an accepted meaning. `language` is that of the headwords.
[[nodiscard]] QVector<Choice> choices_of(const QVector<KnownMeanings> &known, const Lexicon &lexicon, Language language,
                                         const MeaningFeatures &features);

/// Which features take part.
using Used = std::bitset<feature_count>;

/// The weights that make the first meanings of the choices most probable: the probability of a meaning is the
/// exponential of its score among those of its entry. Large weights count against that.
[[nodiscard]] Features fitted_weights(const QVector<Choice> &choices, const Used &used);

/// How many of the choices have an accepted meaning among the first `places` by these weights.
[[nodiscard]] qsizetype right_among_first(const QVector<Choice> &choices, const Features &weights, qsizetype places);

/// The same by weights that are fitted to nine tenths of the choices each time and tried on the rest.
[[nodiscard]] qsizetype cross_validated(const QVector<Choice> &choices, const Used &used, qsizetype places);

}  // namespace freedict
