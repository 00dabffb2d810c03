#pragma once

#include "freedict/lexicon.h"
#include "freedict/word_net.h"

namespace freedict {

/// Who types "go" finds the noun of the same letters: the search selects what is equal to the text. Where the verb is
/// beyond comparison more usual (by the counts of WordNet), the verb's first meanings stand in front of the noun's too,
/// unmarked, so that they can be learned and asked for as they are. The lexicon's meanings must be in order already.
/// Returns how many meanings were put there.
qsizetype lend_usual_verbs(Lexicon &lexicon, const WordNet &net);

}  // namespace freedict
