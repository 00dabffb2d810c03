#pragma once

#include <QHash>
#include <QVector>
#include <utility>

#include "freedict/word_pairs.h"

namespace freedict {

/// Tells whether a word's relatives are translated by relatives of a meaning: to protect is "megvéd", so "védelem" is a
/// good meaning of protection. Relatives begin with the same letters. Keeps a view of both texts.
class WordFamilies final {
  public:
    WordFamilies(const Texts &heads, const Texts &meanings);

    /// The part of the headword's relatives, from 0 to 1, that have a meaning with the beginning of this one; for
    /// each of the meanings.
    [[nodiscard]] QVector<double> shares(int head, const QVector<int> &meaning_numbers) const;

  private:
    [[nodiscard]] QVector<int> relatives(const QString &word, int head) const;
    [[nodiscard]] QStringList beginnings(int meaning) const;

    const Texts &heads_;
    const Texts &meanings_;
    /// The headwords of one word, without "to ", by their letters.
    QVector<std::pair<QString, int>> words_;
};

}  // namespace freedict
