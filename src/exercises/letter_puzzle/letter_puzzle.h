#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

#include "exercises/common/hungarian_text.h"
#include "exercises/common/question_pairs.h"

/// The scrambled-letter puzzle without its window: asks every pair once, in random order; the answer is put together
/// from its letters. A pair without English or without Hungarian, and one whose answer has too many letters to be put
/// together, counts as asked and is passed over.
class kirakójáték final {
  public:
    /// An answer of more letters is passed over.
    static constexpr int legtöbb_betű = 200;

    /// `véletlen` must outlive this object. Ask first with következő().
    kirakójáték(const QVector<szópár> &szavak, RandomNumbers &véletlen);

    /// Puts every pair back as if nothing had been asked.
    void újrakezd();
    /// Asks the next pair; false when none is left, and then nothing is asked any more.
    [[nodiscard]] bool következő(irány merre);
    /// Whether there are pairs, but none has been asked since the beginning, all having been passed over.
    [[nodiscard]] bool semmi_kérdezhető() const { return !sor_.üres() && !kérdezett_; }
    /// How many answers of too many letters the last következő() has passed over.
    [[nodiscard]] int hosszúak() const { return hosszúak_; }

    // What is asked, after következő() was true
    [[nodiscard]] const QString &kérdés() const { return sor_.kérdés(aktuális_, nyelv_); }
    [[nodiscard]] const kérdéspár &pár() const { return sor_.pár(aktuális_); }
    [[nodiscard]] kérdésnyelv kérdésnyelve() const { return nyelv_; }
    [[nodiscard]] QString számláló() const { return sor_.számláló(); }
    /// The answer, with "_" for each blank: Hungarian in Hungarian letters, English in characters.
    [[nodiscard]] const kszöveg &megoldás() const { return megoldás_; }
    [[nodiscard]] QStringList betűk() const;

    /// Holds a word put together from the letters against the answer, exactly. A wrong one marks the pair as failed.
    [[nodiscard]] bool ellenőriz(const QString &kirakott);

  private:
    /// Takes a pair that has been drawn as the question; false when it cannot be one.
    [[nodiscard]] bool kérdez(irány merre);

    kérdéssor sor_;
    RandomNumbers &véletlen_;
    kérdésnyelv nyelv_ = kérdésnyelv::magyar;
    int aktuális_ = 0;
    kszöveg megoldás_;
    bool kérdezett_ = false;
    int hosszúak_ = 0;
};
