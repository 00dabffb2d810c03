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

QVector<int> kevert(qsizetype darab, RandomNumbers &véletlen) {
    QVector<int> sorrend = sorszámok(darab);
    for (qsizetype i = sorrend.size() - 1; i > 0; --i)
        std::swap(sorrend[i], sorrend[véletlen.pick(static_cast<int>(i) + 1)]);
    return sorrend;
}

}  // namespace

int betűlapok::kirak(const QStringList &betűk, const mérő &mér, int nagy, int kicsi, RandomNumbers &véletlen,
                     int egy_sorhoz) {
    gépeltek_.clear();
    jelek_.clear();
    sorokban_ = false;
    gépelhető_sorok_ = 1;
    const int legkisebb = std::min(std::max(kicsi, egy_sorhoz), nagy);
    for (int pont = nagy;; pont = std::max(pont * 9 / 10, legkisebb)) {
        méretez(betűk, mér, pont);
        if (összes_szélesség() <= keret_.width() && kever(véletlen))
            return pont;
        if (pont <= legkisebb)
            break;
    }
    sorokban_ = true;
    const QVector<int> sorrend = kevert(lapok_.size(), véletlen);
    int pont = kicsi;
    for (int túl_nagy = std::max(nagy, kicsi) + 1; túl_nagy - pont > 1;) {
        const int közép = pont + (túl_nagy - pont) / 2;
        méretez(betűk, mér, közép);
        (elférnek_sorokban(sorrend) ? pont : túl_nagy) = közép;
    }
    méretez(betűk, mér, pont);
    sorokba(sorrend);
    return pont;
}

void betűlapok::méretez(const QStringList &betűk, const mérő &mér, int pont) {
    lapok_.clear();
    for (const QString &betű : betűk)
        lapok_.append({betű, {{0, 0}, mér(betű, pont)}});
}

double betűlapok::magasság() const {
    double eddig = 0;
    for (const lap &egyik : lapok_)
        eddig = std::max(eddig, egyik.hely.height());
    return eddig;
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

int betűlapok::folyat(const QVector<int> &sorrend, double fent, double sorköz) {
    int sor = 0;
    double bal = 0;
    for (const int i : sorrend) {
        QRectF &hely = lapok_[i].hely;
        if (bal > 0 && bal + hely.width() > keret_.width()) {
            ++sor;
            bal = 0;
        }
        hely.moveTo(bal, fent + sor * sorköz);
        bal += hely.width();
    }
    return sor + 1;
}

bool betűlapok::elférnek_sorokban(const QVector<int> &sorrend) const {
    betűlapok próba = *this;
    // In another order the word may need one row more.
    const int sorok = 2 * próba.folyat(sorrend, 0, 0) + 1;
    return sorok * magasság() <= keret_.height() &&
           std::all_of(lapok_.cbegin(), lapok_.cend(),
                       [this](const lap &egyik) { return egyik.hely.width() <= keret_.width(); });
}

void betűlapok::sorokba(const QVector<int> &sorrend) {
    const int sorok = folyat(sorrend, 0, 0);
    const double hely_a_soroknak = std::max(keret_.height() - magasság(), 0.0);
    folyat(sorrend, 0, std::min(magasság(), hely_a_soroknak / std::max(sorok - 1, 1)));
    gépelhető_sorok_ = sorok + 1;
}

void betűlapok::mozgat(int i, const QPointF &hová) {
    QRectF &hely = lapok_[i].hely;
    const double jobbra = std::max(keret_.width() - hely.width(), 0.0);
    const double lefelé = std::max(keret_.height() - hely.height(), 0.0);
    hely.moveTo(std::clamp(hová.x(), 0.0, jobbra), std::clamp(hová.y(), 0.0, lefelé));
}

QString betűlapok::kirakott_szó() {
    gépeltek_.clear();
    jelek_.clear();
    if (lapok_.isEmpty())
        return {};
    const double hossz = összes_szélesség();
    if (sorokban_ && hossz > keret_.width()) {
        const QVector<int> sorrend = olvasási_sorrend();
        betűlapok próba = *this;
        const double sorok = próba.folyat(sorrend, 0, 0) * magasság();
        if (sorok <= keret_.height()) {
            const double fent = lapok_[sorrend.front()].hely.top();
            folyat(sorrend, std::min(fent, keret_.height() - sorok), magasság());
            return szó(sorrend);
        }
    }
    QVector<int> sorrend = sorszámok(lapok_.size());
    // Tiles with equal left edges keep their order.
    std::stable_sort(sorrend.begin(), sorrend.end(),
                     [this](int a, int b) { return lapok_[a].hely.left() < lapok_[b].hely.left(); });
    egy_sorba(sorrend, hossz);
    return szó(sorrend);
}

/// Tiles of a row have their middles above the foot of the highest of them.
QVector<int> betűlapok::olvasási_sorrend() const {
    QVector<int> sorrend = sorszámok(lapok_.size());
    const auto hely = [this](int i) -> const QRectF & { return lapok_[i].hely; };
    std::stable_sort(sorrend.begin(), sorrend.end(), [&](int a, int b) { return hely(a).top() < hely(b).top(); });
    for (auto sor = sorrend.begin(); sor != sorrend.end();) {
        const double alja = hely(*sor).bottom();
        const auto következő = std::find_if(sor, sorrend.end(), [&](int i) { return hely(i).center().y() >= alja; });
        std::stable_sort(sor, következő, [&](int a, int b) { return hely(a).left() < hely(b).left(); });
        sor = következő;
    }
    return sorrend;
}

void betűlapok::egy_sorba(const QVector<int> &sorrend, double hossz) {
    const double utolsó = lapok_[sorrend.back()].hely.width();
    // A row that is longer than the frame is pushed together, so that its last tile ends where the frame does.
    const bool hosszú = hossz > keret_.width() && hossz > utolsó;
    const double sűrítés = hosszú ? std::max(keret_.width() - utolsó, 0.0) / (hossz - utolsó) : 1;
    QPointF hová(std::max(std::min(lapok_[sorrend.front()].hely.left(), keret_.width() - hossz), 0.0),
                 lapok_[sorrend.front()].hely.top());
    for (const int i : sorrend) {
        QRectF &hely = lapok_[i].hely;
        const double legjobbrább = std::max(keret_.width() - hely.width(), 0.0);
        hely.moveTo(hosszú ? std::min(hová.x(), legjobbrább) : hová.x(), hová.y());
        hová.rx() += hely.width() * sűrítés;
    }
}

QString betűlapok::szó(const QVector<int> &sorrend) const {
    QString szó;
    for (const int i : sorrend)
        szó += lapok_[i].betű;
    return szó;
}
