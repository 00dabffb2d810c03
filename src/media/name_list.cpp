#include "media/name_list.h"

#include <algorithm>

void névlista::kijelöl(int index) {
    Q_ASSERT(index >= -1 && index < darab());
    kijelölt_ = index;
}

void névlista::feltölt(const QStringList &nevek) {
    nevek_ = nevek;
    kijelölt_ = -1;
}

void névlista::hozzáad(const QString &név) {
    const qsizetype hol = nevek_.indexOf(név);
    if (hol < 0)
        nevek_.append(név);
    kijelölt_ = hol < 0 ? darab() - 1 : static_cast<int>(hol);
}

void névlista::töröl() {
    if (kijelölt_ < 0)
        return;
    nevek_.removeAt(kijelölt_);
    kijelölt_ = std::min(kijelölt_, darab() - 1);
}

void névlista::töröl(const QString &név) {
    const qsizetype hol = nevek_.indexOf(név);
    if (hol < 0)
        return;
    kijelölt_ = static_cast<int>(hol);
    töröl();
}

void névlista::áthelyez(int távolság) {
    const int hová = kijelölt_ + távolság;
    if (kijelölt_ < 0 || hová < 0 || hová >= darab())
        return;
    nevek_.swapItemsAt(kijelölt_, hová);
    kijelölt_ = hová;
}

bool mappa_nélküli(const QString &név) {
    return !név.contains(u'/') && !név.contains(u'\\') && !név.contains(QChar::Null);
}
