#include <algorithm>

#include "exercises/letter_puzzle/letter_tiles.h"

// The part of betűlapok that the keyboard drives.

int betűlapok::szabad(const QString &eleje, bool egészen, Qt::CaseSensitivity kisnagy) const {
    for (int i = 0; i < lapok_.size(); ++i) {
        const QString &betű = lapok_[i].betű;
        const bool foglalt =
            std::any_of(gépeltek_.cbegin(), gépeltek_.cend(), [i](const gépelt &g) { return g.i == i; });
        if (!foglalt && betű.startsWith(eleje, kisnagy) && (!egészen || betű.size() == eleje.size()))
            return i;
    }
    return -1;
}

int betűlapok::gépel(const QString &jel) {
    for (const Qt::CaseSensitivity kisnagy : {Qt::CaseSensitive, Qt::CaseInsensitive}) {
        const QString folytatva = jelek_ + jel;
        if (!gépeltek_.isEmpty() && lapok_[gépeltek_.back().i].betű.startsWith(folytatva, kisnagy)) {
            jelek_ = folytatva;
            return gépeltek_.back().i;
        }
        if (const int egész = szabad(jel, true, kisnagy); egész >= 0)
            return lerak(egész, jel);
        // What was taken for a letter was the beginning of a longer one.
        if (const int hosszabb = szabad(folytatva, false, kisnagy); !gépeltek_.isEmpty() && hosszabb >= 0) {
            visszavesz();
            return lerak(hosszabb, folytatva);
        }
        if (const int kezdődő = szabad(jel, false, kisnagy); kezdődő >= 0)
            return lerak(kezdődő, jel);
    }
    return -1;
}

int betűlapok::lerak(int i, const QString &jelek) {
    int sor = 0;
    double bal = 0;
    const auto következő = [&](double szélesség) {
        if (bal > 0 && bal + szélesség > keret_.width()) {
            ++sor;
            bal = 0;
        }
        const double hol = bal;
        bal += szélesség;
        return hol;
    };
    for (const gépelt &előző : gépeltek_)
        következő(lapok_[előző.i].hely.width());
    gépeltek_.append({i, lapok_[i].hely.topLeft()});
    jelek_ = jelek;
    const double hol = következő(lapok_[i].hely.width());
    mozgat(i, {hol, keret_.height() - (gépelhető_sorok_ - sor) * magasság()});
    // A free tile below it would not be seen.
    const QRectF hely = lapok_[i].hely;
    for (int k = 0; k < lapok_.size(); ++k) {
        const bool foglalt =
            std::any_of(gépeltek_.cbegin(), gépeltek_.cend(), [k](const gépelt &g) { return g.i == k; });
        if (!foglalt && lapok_[k].hely.intersects(hely))
            mozgat(k, {lapok_[k].hely.left(), hely.top() - lapok_[k].hely.height()});
    }
    return i;
}

int betűlapok::visszavesz() {
    jelek_.clear();
    if (gépeltek_.isEmpty())
        return -1;
    const gépelt utolsó = gépeltek_.takeLast();
    mozgat(utolsó.i, utolsó.honnan);
    return utolsó.i;
}
