#pragma once

#include <QString>
#include <QStringList>
#include <QVector>
#include <functional>
#include <memory>

#include "forms/form_reader.h"

/// A part of a text: where it begins and how many characters it has.
struct szövegrész {
    qsizetype kezdet = 0;
    qsizetype hossz = 0;

    bool operator==(const szövegrész &) const = default;
};

/// Headword and meaning in which what was looked for stands; what each side has of it is marked, from left to right.
struct kifejezés {
    /// With its "to " and the further forms of the headword.
    QString angol;
    QString magyar;
    QVector<szövegrész> angol_találatok = {};
    QVector<szövegrész> magyar_találatok = {};
    /// True when every word stands there as it was typed or in another form of it; false when one of them is a part of
    /// a longer word.
    bool egész_szó = false;
};

/// What a search in the phrases takes its caller along with. Both are called on the thread of the search.
struct kifejezésfigyelő {
    /// Gets the next rows, at least one; the first page is small so that it comes at once.
    std::function<void(const QVector<kifejezés> &lap)> lap;
    /// Asked before each page and often on the way; true ends the search at once.
    std::function<bool()> megálljon;
    /// No more rows than these.
    int legfeljebb = 10000;
};

/// Finds words anywhere in headwords and meanings of both dictionaries, by the index of their words that was made with
/// them (suggestions/word_index_format.h). Each pair is found once, whichever dictionary it stands in. First come the
/// pairs that have the words as they were typed, then those with other forms of them, then those where they begin
/// longer words, then those where they stand inside of longer words; in each of these the shorter and more usual first.
/// Capitals do not count, nor do accents when the word is unknown with those that it was typed with.
///
/// Made anywhere, then used on one thread; nothing is read before the first question.
class kifejezéskereső final {
  public:
    struct elemzők {
        /// May be missing; both outlive this object.
        alakelemző *angol = nullptr;
        alakelemző *magyar = nullptr;
    };
    kifejezéskereső(const QString &programkönyvtár, elemzők alakok);
    ~kifejezéskereső();

    /// Finds the pairs that have all words of `szöveg`; nothing for a text without a word. Returns how many rows were
    /// told.
    int keres(const QString &szöveg, const kifejezésfigyelő &figyelő);

    /// In how many pairs all words of `szöveg` stand whole, as they were typed or in another form; 0 when there is no
    /// index. Counts for itself, without reading a pair.
    [[nodiscard]] int egész_szavak_száma(const QString &szöveg);

    /// What is missing or damaged, each a sentence for the user that names the file; empty when all is there. An index
    /// that was not made of these dictionaries counts as damaged.
    [[nodiscard]] QStringList hiányok();

  private:
    struct belső;
    std::unique_ptr<belső> belső_;
};
