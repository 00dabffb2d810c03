#include "exercises/common/question_pairs.h"

#include <algorithm>

#include "state/number_text.h"

using namespace Qt::StringLiterals;

kérdésnyelv kérdés_nyelve(irány merre, RandomNumbers &véletlen) {
    const int index = merre == irány::változó ? véletlen.pick(2) : static_cast<int>(merre);
    return index == static_cast<int>(irány::magyarról) ? kérdésnyelv::magyar : kérdésnyelv::angol;
}

kérdéssor::kérdéssor(const QVector<szópár> &szavak, RandomNumbers &véletlen) : véletlen_(véletlen) {
    párok_.reserve(szavak.size());
    for (const szópár &szó : szavak)
        párok_.append({szó.magyar, szó.angol});
}

const QString &kérdéssor::kérdés(int i, kérdésnyelv nyelv) const {
    return nyelv == kérdésnyelv::magyar ? pár(i).magyar : pár(i).angol;
}

const QString &kérdéssor::megoldás(int i, kérdésnyelv nyelv) const {
    return nyelv == kérdésnyelv::magyar ? pár(i).angol : pár(i).magyar;
}

void kérdéssor::újrakezd() {
    for (kérdéspár &egyik : párok_) {
        egyik.kész = false;
        egyik.hibás = false;
    }
    kérdezett_ = -1;
}

int kérdéssor::kihúz() {
    int i = 0;
    do {
        i = véletlen_.pick(utolsó() + 1);
    } while (pár(i).kész);
    párok_[i].kész = true;
    ++kérdezett_;
    return i;
}

void kérdéssor::visszatesz(int i) {
    párok_[i].kész = false;
    --kérdezett_;
}

QString kérdéssor::számláló() const {
    return számszöveg(kérdezett_ + 1) + u'/' + számszöveg(utolsó() + 1);
}

int kérdéssor::hibaarány() const {
    const auto hibák =
        std::count_if(párok_.cbegin(), párok_.cend(), [](const kérdéspár &egyik) { return egyik.hibás; });
    // The divisor is the highest index, so one failed pair of ten makes 11; one pair alone would divide by zero.
    return static_cast<int>(hibák * 100 / std::max(utolsó(), 1));
}
