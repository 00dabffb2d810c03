#include "exercises/multiple_choice/multiple_choice.h"

#include <algorithm>

namespace {

/// The pairs as the game asks them. A pair without English at the head of the list is overwritten by the next one.
QVector<szópár> játékpárok(const QVector<szópár> &szavak) {
    QVector<szópár> párok;
    for (const szópár &szó : szavak) {
        if (!párok.isEmpty() && párok.front().angol.isEmpty())
            párok.removeFirst();
        párok.append({szó.angol, szó.magyar.section(u',', 0, 0)});
    }
    return párok;
}

}  // namespace

választójáték::választójáték(const QVector<szópár> &szavak, RandomNumbers &véletlen)
    : sor_(játékpárok(szavak), véletlen), véletlen_(véletlen) {}

void választójáték::újrakezd(irány merre, int választék) {
    sor_.újrakezd();
    irány_ = merre;
    // More candidates than pairs could never be drawn.
    választék_ = std::min(választék, párok_száma());
    vége_ = false;
    következő();
}

void választójáték::következő() {
    aktuális_ = sor_.kihúz();
    nyelv_ = kérdés_nyelve(irány_, véletlen_);
    kínál();
}

void választójáték::kínál() {
    QVector<bool> foglalt(párok_száma(), false);
    const int jó_hely = véletlen_.pick(választék_);
    foglalt[aktuális_] = true;
    kínálat_.clear();
    for (int hely = 0; hely < választék_; ++hely) {
        int melyik = aktuális_;
        while (hely != jó_hely && foglalt[melyik])
            melyik = véletlen_.pick(párok_száma());
        foglalt[melyik] = true;
        kínálat_.append(sor_.megoldás(melyik, nyelv_));
    }
}

választójáték::eredmény választójáték::ellenőriz(const QString &válasz) {
    if (válasz != megoldás()) {
        sor_.hibázott(aktuális_);
        return eredmény::hibás;
    }
    vége_ = sor_.végére_ért();
    return vége_ ? eredmény::vége : eredmény::helyes;
}
