#include "exercises/common/widgets/direction_buttons.h"

#include <QButtonGroup>
#include <algorithm>

#include "ui/controls/named.h"

using namespace Qt::StringLiterals;

iránygombok::iránygombok()
    : nyelvoptb{named(new QRadioButton(u"Angolról-Magyarra"_s), u"nyelvoptb(0)", u"Angolról magyarra"),
                named(new QRadioButton(u"Magyarról - Angolra"_s), u"nyelvoptb(1)", u"Magyarról angolra"),
                named(new QRadioButton(u"Változó nyelv"_s), u"nyelvoptb(2)", u"Változó nyelv")} {
    kijelöl(alap);
}

void iránygombok::elhelyez(ablak &mire, const std::function<QRectF(int)> &hol) {
    // Where others lie beside them on the window, they must be told which belong together.
    auto *csoport = new QButtonGroup(&mire);
    for (int i = 0; i < static_cast<int>(nyelvoptb.size()); ++i) {
        QRadioButton *gomb = nyelvoptb[static_cast<size_t>(i)];
        mire.elhelyez(gomb, hol(i));
        csoport->addButton(gomb, i);
    }
}

irány iránygombok::kijelölt() const {
    const auto melyik = std::find_if(nyelvoptb.begin(), nyelvoptb.end(), [](auto *gomb) { return gomb->isChecked(); });
    return static_cast<irány>(melyik - nyelvoptb.begin());
}

void iránygombok::kijelöl(const QVariant &index) {
    bool szám = false;
    const int i = index.toInt(&szám);
    const bool van = szám && i >= 0 && i < static_cast<int>(nyelvoptb.size());
    nyelvoptb[static_cast<size_t>(van ? i : alap)]->setChecked(true);
}
