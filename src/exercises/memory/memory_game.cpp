#include "exercises/memory/memory_game.h"

#include <algorithm>

using namespace Qt::StringLiterals;

memóriajáték::memóriajáték(const QVector<szópár> &szavak, RandomNumbers &véletlen) : véletlen_(véletlen) {
    for (const szópár &szó : szavak)
        szópárok_.append({szó.magyar.section(u',', 0, 0), szó.angol});
}

void memóriajáték::kioszt(int kártyák) {
    Q_ASSERT(kártyák % 2 == 0 && kártyák / 2 <= szópárok_.size());
    véletlen_.reseed();
    for (Szópár &egyik : szópárok_)
        egyik.felhasznált = false;
    játékpárok_.clear();
    while (játékpárok_.size() < kártyák / 2) {
        Szópár &húzott = szópárok_[véletlen_.pick(szópárfelső() + 1)];
        if (húzott.felhasznált)
            continue;
        húzott.felhasznált = true;
        játékpárok_.append(húzott);
    }

    kártyák_.fill({}, kártyák);
    QVector<bool> foglalt(kártyák, false);
    const auto rátesz = [&](const QString &szöveg) {
        int hová = 0;
        do {
            hová = véletlen_.pick(kártyák);
        } while (foglalt[hová]);
        foglalt[hová] = true;
        kártyák_[hová].szöveg = szöveg;
    };
    for (const Szópár &egyik : játékpárok_) {
        rátesz(egyik.angol);
        rátesz(egyik.magyar);
    }
    megtalált_ = 0;
    felfordított_ = 0;
}

memóriajáték::fordulat memóriajáték::felfordít(int i) {
    Q_ASSERT(felfordított_ < 2);
    if (felfedett(i) || !játékban(i))
        return fordulat::semmi;
    kártyák_[i].felfedett = true;
    if (++felfordított_ < 2)
        return fordulat::első;
    std::array<int, 2> lapok{};
    size_t hányadik = 0;
    for (int k = 0; k < kártyák_.size(); ++k) {
        if (felfedett(k) && játékban(k))
            lapok.at(hányadik++) = k;
    }
    if (!párvizsgál(lapok))
        return fordulat::tévedés;
    pár_ = lapok;
    for (const int k : pár_)
        kártyák_[k].játékban = false;
    return fordulat::pár;
}

bool memóriajáték::párvizsgál(const std::array<int, 2> &lapok) const {
    const QString &a = szöveg(lapok[0]);
    const QString &b = szöveg(lapok[1]);
    return std::any_of(játékpárok_.cbegin(), játékpárok_.cend(), [&](const Szópár &egyik) {
        return (egyik.angol == a && egyik.magyar == b) || (egyik.magyar == a && egyik.angol == b);
    });
}

void memóriajáték::lefed() {
    for (kártya &egyik : kártyák_) {
        if (egyik.játékban)
            egyik.felfedett = false;
    }
    felfordított_ = 0;
}

QString memóriajáték::állás() const {
    return u"%1/%2"_s.arg(megtalált_).arg(játékpárok_.size());
}
