#pragma once

#include <QVector>

#include "wordlist/word_pair_list.h"

/// The first `count` pairs of the Hungarian–English dictionary that a file can hold: each headword with the first of
/// its meanings. Ends the program when there are not so many.
[[nodiscard]] QVector<szópár> real_pairs(int count);
