#include "exercises/letter_puzzle/letter_puzzle.h"

using namespace Qt::StringLiterals;

kirakójáték::kirakójáték(const QVector<szópár> &szavak, RandomNumbers &véletlen)
    : sor_(szavak, véletlen), véletlen_(véletlen) {}

void kirakójáték::újrakezd() {
    sor_.újrakezd();
    kérdezett_ = false;
}

bool kirakójáték::következő(irány merre) {
    hosszúak_ = 0;
    do {
        if (sor_.végére_ért())
            return false;
        véletlen_.reseed();
        aktuális_ = sor_.kihúz();
    } while (!kérdez(merre));
    kérdezett_ = true;
    return true;
}

bool kirakójáték::kérdez(irány merre) {
    if (pár().angol.isEmpty() || pár().magyar.isEmpty())
        return false;
    nyelv_ = kérdés_nyelve(merre, véletlen_);
    megoldás_.szövegnyelv(nyelv_ == kérdésnyelv::magyar ? kszöveg::angol : kszöveg::magyar);
    megoldás_.value(sor_.megoldás(aktuális_, nyelv_));
    megoldás_.csere(u" "_s, u"_"_s);
    if (megoldás_.MAGYARBETŰKSZÁMA() <= legtöbb_betű)
        return true;
    ++hosszúak_;
    return false;
}

QStringList kirakójáték::betűk() const {
    QStringList betűk;
    for (int i = 1; i <= megoldás_.MAGYARBETŰKSZÁMA(); ++i)
        betűk.append(megoldás_.szóbetűje(i));
    return betűk;
}

bool kirakójáték::ellenőriz(const QString &kirakott) {
    if (kirakott == megoldás_.value())
        return true;
    sor_.hibázott(aktuális_);
    return false;
}
