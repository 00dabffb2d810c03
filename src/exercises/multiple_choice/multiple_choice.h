#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

#include "exercises/common/question_pairs.h"

/// The multiple-choice game without its window: asks every pair in random order, each with a choice of candidates.
class választójáték final {
  public:
    enum class eredmény { helyes, hibás, vége };

    static constexpr int legkevesebb = 2;
    static constexpr int legtöbb = 5;

    /// Of several Hungarian meanings only the first is asked and offered. `véletlen` must outlive this object.
    választójáték(const QVector<szópár> &szavak, RandomNumbers &véletlen);

    [[nodiscard]] bool üres() const { return sor_.üres(); }
    [[nodiscard]] int párok_száma() const { return sor_.utolsó() + 1; }

    /// Begins anew with this direction and `választék` candidates, but no more than there are pairs, and asks.
    void újrakezd(irány merre, int választék);
    /// Asks the next pair.
    void következő();

    [[nodiscard]] const QString &kérdés() const { return sor_.kérdés(aktuális_, nyelv_); }
    [[nodiscard]] const QString &megoldás() const { return sor_.megoldás(aktuális_, nyelv_); }
    /// The candidates in the order of their places: distinct pairs' members, the right one among them.
    [[nodiscard]] const QStringList &kínálat() const { return kínálat_; }
    [[nodiscard]] QString számláló() const { return sor_.számláló(); }

    /// Holds `válasz` against the answer. After hibás the same question stays, after helyes következő() asks on, after
    /// vége the game is over.
    [[nodiscard]] eredmény ellenőriz(const QString &válasz);
    [[nodiscard]] bool vége() const { return vége_; }
    [[nodiscard]] int hibaarány() const { return sor_.hibaarány(); }

  private:
    void kínál();

    kérdéssor sor_;
    RandomNumbers &véletlen_;
    irány irány_ = irány::magyarról;
    kérdésnyelv nyelv_ = kérdésnyelv::magyar;
    int választék_ = legtöbb;
    int aktuális_ = 0;
    QStringList kínálat_;
    bool vége_ = false;
};
