#pragma once

#include <QVector>

// Which words translate which, learned from pairs of texts that translate each other: the first model of Brown, Della
// Pietra, Della Pietra and Mercer, "The Mathematics of Statistical Machine Translation" (1993). Each word of a text has
// come from one word of the other text, or from none; expectation and maximisation by turns make the probability of
// all texts larger with each round.
//
// Words are numbers from 0 up. The sums are taken in the order of the pairs and no function of the system's library is
// called, so the same pairs give the same bits everywhere.
namespace freedict {

/// The words of one text.
using WordNumbers = QVector<int>;

/// How probable each word is given a word of the other language.
class TranslationTable final {
  public:
    /// Learns from the pairs (from[i], to[i]) in `rounds` rounds. The words of both are below the two counts.
    TranslationTable(const QVector<WordNumbers> &from, const QVector<WordNumbers> &to, int from_count, int rounds);

    /// Of the word `to` given the word `from`; 0 when they never stood in one pair.
    [[nodiscard]] double probability(int from, int to) const;
    /// Of the word `to` where it comes from no word.
    [[nodiscard]] double probability_alone(int to) const { return at(0, to); }
    /// Of the word `to` given a text: the mean of its words and of none.
    [[nodiscard]] double probability_given(const WordNumbers &from, int to) const;

  private:
    struct Link {
        int to;
        double probability;
    };

    [[nodiscard]] double at(int row, int to) const;

    /// Row 0 belongs to no word, row n + 1 to word n; links_[first_[row]] to links_[first_[row + 1]] by rising `to`.
    QVector<qsizetype> first_;
    QVector<Link> links_;
};

/// The natural logarithm of a positive number, the same on every system.
[[nodiscard]] double natural_logarithm(double number);

}  // namespace freedict
