#include "exercises/letter_puzzle/letter_tiles.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace {

QVector<int> sorszámok(qsizetype darab) {
    QVector<int> sorrend(darab);
    std::iota(sorrend.begin(), sorrend.end(), 0);
    return sorrend;
}

}  // namespace

int betűlapok::kirak(const QStringList &betűk, const mérő &mér, int nagy, int kicsi, RandomNumbers &véletlen) {
    for (int pont = nagy;; pont = std::max(pont * 9 / 10, kicsi)) {
        lapok_.clear();
        for (const QString &betű : betűk)
            lapok_.append({betű, {{0, 0}, mér(betű, pont)}});
        if (összes_szélesség() <= keret_.width() && kever(véletlen))
            return pont;
        if (pont <= kicsi) {
            sorokba(véletlen);
            return pont;
        }
    }
}

double betűlapok::összes_szélesség() const {
    return std::accumulate(lapok_.cbegin(), lapok_.cend(), 0.0,
                           [](double eddig, const lap &egyik) { return eddig + egyik.hely.width(); });
}

bool betűlapok::kever(RandomNumbers &véletlen) {
    for (int i = 0; i < lapok_.size(); ++i) {
        QRectF &hely = lapok_[i].hely;
        if (hely.height() > keret_.height())
            return false;
        int húzás = 0;
        do {
            if (húzás++ == legtöbb_húzás)
                return false;
            const int bal = static_cast<int>(véletlen.next() * (keret_.width() - hely.width()));
            const int fent = static_cast<int>(véletlen.next() * (keret_.height() - hely.height()));
            hely.moveTo(bal, fent);
        } while (átfed(i));
    }
    return true;
}

/// Whether tile `i` overlaps one before it.
bool betűlapok::átfed(int i) const {
    return std::any_of(lapok_.cbegin(), lapok_.cbegin() + i,
                       [&](const lap &előző) { return előző.hely.intersects(lapok_[i].hely); });
}

void betűlapok::sorokba(RandomNumbers &véletlen) {
    QVector<int> sorrend = sorszámok(lapok_.size());
    for (qsizetype i = sorrend.size() - 1; i > 0; --i)
        std::swap(sorrend[i], sorrend[véletlen.pick(static_cast<int>(i) + 1)]);
    int utolsó_sor = 0;
    double bal = 0;
    QVector<int> melyik_sorban(lapok_.size());
    double magasság = 0;
    for (const int i : sorrend) {
        QRectF &hely = lapok_[i].hely;
        if (bal > 0 && bal + hely.width() > keret_.width()) {
            ++utolsó_sor;
            bal = 0;
        }
        hely.moveLeft(bal);
        melyik_sorban[i] = utolsó_sor;
        bal += hely.width();
        magasság = std::max(magasság, hely.height());
    }
    const double hely_a_soroknak = std::max(keret_.height() - magasság, 0.0);
    const double sorköz = std::min(magasság, hely_a_soroknak / std::max(utolsó_sor, 1));
    for (int i = 0; i < lapok_.size(); ++i)
        lapok_[i].hely.moveTop(melyik_sorban[i] * sorköz);
}

void betűlapok::mozgat(int i, const QPointF &hová) {
    QRectF &hely = lapok_[i].hely;
    const double jobbra = std::max(keret_.width() - hely.width(), 0.0);
    const double lefelé = std::max(keret_.height() - hely.height(), 0.0);
    hely.moveTo(std::clamp(hová.x(), 0.0, jobbra), std::clamp(hová.y(), 0.0, lefelé));
}

QString betűlapok::kirakott_szó() {
    QVector<int> sorrend = sorszámok(lapok_.size());
    // Tiles with equal left edges keep their order.
    std::stable_sort(sorrend.begin(), sorrend.end(),
                     [this](int a, int b) { return lapok_[a].hely.left() < lapok_[b].hely.left(); });
    if (sorrend.isEmpty())
        return {};
    const double hossz = összes_szélesség();
    const double utolsó = lapok_[sorrend.back()].hely.width();
    // A row that is longer than the frame is pushed together, so that its last tile ends where the frame does.
    const bool hosszú = hossz > keret_.width() && hossz > utolsó;
    const double sűrítés = hosszú ? std::max(keret_.width() - utolsó, 0.0) / (hossz - utolsó) : 1;
    QString szó;
    QPointF hová(std::max(std::min(lapok_[sorrend.front()].hely.left(), keret_.width() - hossz), 0.0),
                 lapok_[sorrend.front()].hely.top());
    for (const int i : std::as_const(sorrend)) {
        QRectF &hely = lapok_[i].hely;
        const double legjobbrább = std::max(keret_.width() - hely.width(), 0.0);
        hely.moveTo(hosszú ? std::min(hová.x(), legjobbrább) : hová.x(), hová.y());
        hová.rx() += hely.width() * sűrítés;
        szó += lapok_[i].betű;
    }
    return szó;
}
