#include "exercises/direction_buttons.h"

#include <algorithm>

#include "ui/named.h"

iránygombok::iránygombok()
    : nyelvoptb{named(new QRadioButton(QStringLiteral("Angolról-Magyarra")), u"nyelvoptb(0)", u"Angolról magyarra"),
                named(new QRadioButton(QStringLiteral("Magyarról - Angolra")), u"nyelvoptb(1)", u"Magyarról angolra"),
                named(new QRadioButton(QStringLiteral("Változó nyelv")), u"nyelvoptb(2)", u"Változó nyelv")} {
    kijelöl(alap);
}

irány iránygombok::kijelölt() const {
    const auto melyik = std::find_if(nyelvoptb.begin(), nyelvoptb.end(), [](auto *gomb) { return gomb->isChecked(); });
    return static_cast<irány>(melyik - nyelvoptb.begin());
}

void iránygombok::kijelöl(int index) {
    const bool van = index >= 0 && index < static_cast<int>(nyelvoptb.size());
    nyelvoptb[static_cast<size_t>(van ? index : alap)]->setChecked(true);
}
