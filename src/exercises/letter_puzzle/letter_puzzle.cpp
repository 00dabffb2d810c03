#include "exercises/letter_puzzle/letter_puzzle.h"

using namespace Qt::StringLiterals;

kirakójáték::kirakójáték(const QVector<szópár> &szavak, RandomNumbers &véletlen)
    : sor_(szavak, véletlen), véletlen_(véletlen) {}

bool kirakójáték::következő(irány merre) {
    do {
        if (sor_.végére_ért())
            return false;
        véletlen_.reseed();
        aktuális_ = sor_.kihúz();
    } while (pár().angol.isEmpty() || pár().magyar.isEmpty());
    nyelv_ = kérdés_nyelve(merre, véletlen_);
    megoldás_.szövegnyelv(nyelv_ == kérdésnyelv::magyar ? kszöveg::angol : kszöveg::magyar);
    megoldás_.value(sor_.megoldás(aktuális_, nyelv_));
    megoldás_.csere(u" "_s, u"_"_s);
    return true;
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
