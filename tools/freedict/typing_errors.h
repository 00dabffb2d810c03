#pragma once

#include <QString>
#include <QVector>

#include "freedict/lexicon.h"
#include "freedict/spelling_dictionary.h"

namespace freedict {

/// A text of the package and what it should be.
struct Mend {
    enum class Reason { blanks, bracket, three_letters, neighbour };

    Language language;
    QString text;
    QString mended;
    Reason reason;
};

/// The headwords and meanings with typing errors that can be mended without a doubt:
/// - blanks at an end or doubled, and a bracket that is opened where it should be closed;
/// - a letter that stands three times running in a word, where it makes a word that is known when it stands twice or
/// once;
/// - one letter too many, too few, wrong or in its neighbour's place, if the word is unknown to the spelling
/// dictionary,
///   the right one is known, the mended text stands in the dictionary with one of the same translations, and there is
///   only one such text.
/// Without spelling dictionaries only the first.
[[nodiscard]] QVector<Mend> typing_errors(const Lexicon &lexicon, const Spelling *spelling);

/// The mends' texts of one language for rename_texts().
[[nodiscard]] QHash<QString, QString> names_of(const QVector<Mend> &mends, Language language);

}  // namespace freedict
