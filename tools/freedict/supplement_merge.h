#pragma once

#include "freedict/lexicon.h"
#include "freedict/supplement.h"

namespace freedict {

/// What merging did in one direction.
struct Added {
    qsizetype entries = 0;
    qsizetype meanings = 0;

    friend bool operator==(const Added &, const Added &) = default;
};

struct Merged {
    Added english;
    Added hungarian;
};

/// Puts the supplement's meanings in front of the entries that are there and adds the entries that are not, in both
/// directions. In front stand what the entry's own lines say, in their order (Entry::fixed), then what leads back there
/// "in front" (Entry::led); a meaning never stands twice.
///
/// A headword is found with its further forms: "to go" is the package's "to go, went, gone". Where there are several
/// such entries, the one that a search selects gets the meanings, and each other one that holds a meaning shows it in
/// front; verbs of different forms (to lie, lay, lain and to lie, lied) are different words and get none of each
/// other's.
Merged merge_supplement(Lexicon &lexicon, const Supplement &supplement);

}  // namespace freedict
