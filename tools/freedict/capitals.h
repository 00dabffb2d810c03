#pragma once

#include <QHash>
#include <QString>

#include "freedict/lexicon.h"
#include "freedict/spelling_dictionary.h"
#include "freedict/supplement.h"

namespace freedict {

/// The texts of one language that lack their capitals, and what they are with them.
///
/// English ones word by word: a word gets the capitals that the supplement has, unless the British spelling dictionary
/// knows it in small letters too (may and May); and those of the spelling dictionaries, if all of them accept it with
/// capitals only. Words of one to three letters, and parts of a word with hyphens that are so short, are too often
/// something else and get capitals by the supplement alone; but "i" is "I".
///
/// Hungarian ones as a whole where the supplement has them with capitals and the spelling dictionary does not know them
/// in small letters.
[[nodiscard]] QHash<QString, QString> texts_with_capitals(const Lexicon &lexicon, Language language,
                                                          const Spelling &spelling, const Supplement &supplement);

}  // namespace freedict
