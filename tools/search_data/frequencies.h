#pragma once

#include <QByteArray>
#include <QVector>

#include "freedict/word_classes.h"
#include "freedict/word_net.h"
#include "search_data/dictionary_lines.h"

// How common headwords are, from 0 to 255, a byte for each line of a dictionary.
//
// English: the class of SCOWL of the rarest word, and how often WordNet's texts have a headword of one word. Hungarian,
// of which there are no such lists: the most common of its translations, those counting less that have other meanings
// before it, and in how many pairs the dictionaries have its word.
namespace search_data {

[[nodiscard]] QByteArray english_frequencies(const QVector<Line> &english, const freedict::WordClasses &classes,
                                             const freedict::WordNet &net);

[[nodiscard]] QByteArray hungarian_frequencies(const QVector<Line> &hungarian, const QVector<Line> &english,
                                               const QByteArray &english_frequencies);

}  // namespace search_data
