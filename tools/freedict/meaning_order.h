#pragma once

#include <QString>
#include <QVector>

#include "freedict/lexicon.h"
#include "freedict/meaning_features.h"

namespace freedict {

/// What the features count for in the order of a headword's meanings, as zimbora-fit finds it.
[[nodiscard]] const Features &weights(Language headwords);

/// A meaning in its place.
struct PlacedMeaning {
    QString meaning;
    /// The sum of what the features add.
    double score = 0;
    /// What each feature adds: its value by its weight.
    Features added{};
    /// 0 and 1 are the supplement's: 0 stands where it stands, 1 in front of the others by its score; 2 is all the
    /// rest.
    int group = 2;
    /// It stands behind all others, because it is coarse.
    bool coarse = false;
};

/// An entry's meanings from the best to the worst: what is fixed, what is led
/// there, the others, these two by their score; at last what is coarse; equal
/// ones as the package has them.
[[nodiscard]] QVector<PlacedMeaning> placed_meanings(const MeaningFeatures &features, Language language,
                                                     const Entry &entry);

/// Brings the meanings of all entries of one direction into that order.
void order_meanings(Lexicon &lexicon, Language language, const MeaningFeatures &features, const Steps &steps);

}  // namespace freedict
