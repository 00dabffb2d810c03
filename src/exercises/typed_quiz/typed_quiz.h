#pragma once

#include <QString>
#include <QVector>

#include "exercises/common/question_pairs.h"

/// The typed quiz without its window: asks every pair in random order, and those that failed again.
class kikérdezés final {
  public:
    /// What an answer leads to.
    enum class eredmény { helyes, hibás, vége };

    /// `véletlen` must outlive this object. Ask first with kérdez().
    kikérdezés(const QVector<szópár> &szavak, RandomNumbers &véletlen);

    [[nodiscard]] bool üres() const { return sor_.üres(); }
    /// Begins anew in another direction and asks; a list of one pair stays as it is. True when it began anew.
    bool irányváltás(irány új);
    /// Sets the direction of the questions to come.
    void iránybeállít(irány új) { irány_ = új; }

    /// Asks the next pair.
    void kérdez();
    [[nodiscard]] const QString &kérdés() const { return sor_.kérdés(aktuális_, nyelv_); }
    [[nodiscard]] const QString &megoldás() const { return sor_.megoldás(aktuális_, nyelv_); }
    [[nodiscard]] QString számláló() const { return sor_.számláló(); }

    /// Holds `válasz` against the answer, whole and exactly. A failed pair goes back into the pool; after helyes and
    /// hibás kérdez() asks on.
    [[nodiscard]] eredmény ellenőriz(const QString &válasz);
    [[nodiscard]] int hibaarány() const { return sor_.hibaarány(); }

  private:
    kérdéssor sor_;
    RandomNumbers &véletlen_;
    irány irány_ = irány::magyarról;
    kérdésnyelv nyelv_ = kérdésnyelv::magyar;
    int aktuális_ = 0;
};
