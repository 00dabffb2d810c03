#pragma once

#include <QString>
#include <QVector>

#include "platform/random_numbers.h"
#include "wordlist/word_pair_list.h"

/// One pair of an exercise.
struct kérdéspár {
    QString magyar;
    QString angol;
    /// Asked, and not failed since.
    bool kész = false;
    /// Failed at least once.
    bool hibás = false;
};

/// The language of the question: the other member of the pair is the answer.
enum class kérdésnyelv { angol, magyar };

/// The direction the user has chosen: the index of the option button.
enum class irány { angolról = 0, magyarról = 1, változó = 2 };

/// The language of the next question; with `irány::változó` it is drawn.
[[nodiscard]] kérdésnyelv kérdés_nyelve(irány merre, RandomNumbers &véletlen);

/// The pairs of an exercise, each to be asked until it is answered: the pool from which questions are drawn, what has
/// been asked and what has failed. The quiz, the multiple choice and the puzzle share it.
class kérdéssor final {
  public:
    /// Nothing has been asked yet. `véletlen` must outlive this object.
    kérdéssor(const QVector<szópár> &szavak, RandomNumbers &véletlen);

    [[nodiscard]] bool üres() const { return párok_.isEmpty(); }
    /// The highest index; −1 without a pair.
    [[nodiscard]] int utolsó() const { return static_cast<int>(párok_.size()) - 1; }
    [[nodiscard]] const kérdéspár &pár(int i) const { return párok_.at(i); }
    /// The member in the language of the question, and the other one.
    [[nodiscard]] const QString &kérdés(int i, kérdésnyelv nyelv) const;
    [[nodiscard]] const QString &megoldás(int i, kérdésnyelv nyelv) const;

    /// Puts every pair back as if nothing had been asked.
    void újrakezd();
    /// Draws an index until it hits a pair that is not done, marks it done and counts the question. At least one pair
    /// must not be done.
    [[nodiscard]] int kihúz();
    /// The pair has failed; the question stays.
    void hibázott(int i) { párok_[i].hibás = true; }
    /// The pair goes back into the pool and its question does not count.
    void visszatesz(int i);

    /// True when every pair has been asked and answered.
    [[nodiscard]] bool végére_ért() const { return kérdezett_ >= utolsó(); }
    /// The question's number and the number of pairs, each with the leading blank of a number: " 1/ 10".
    [[nodiscard]] QString számláló() const;
    /// Failed pairs in percent of the highest index, whole; of one pair, 100 when it has failed.
    [[nodiscard]] int hibaarány() const;

  private:
    QVector<kérdéspár> párok_;
    RandomNumbers &véletlen_;
    /// Number of questions that count, less one.
    int kérdezett_ = -1;
};
