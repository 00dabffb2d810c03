#include "ui/window/colour_copy.h"

#include <QLabel>
#include <QRadioButton>

#include "ui/controls/picture_box.h"

namespace global {

void színmásol(ablak &mire, const ablak &főablak) {
    const QColor szín = főablak.háttérszín();
    mire.háttérszínbeállít(szín);
    for (QWidget *vezérlő : mire.vezérlők()) {
        if (auto *kép = dynamic_cast<PictureBox *>(vezérlő)) {
            kép->set_background(szín);
        } else if (auto *címke = qobject_cast<QLabel *>(vezérlő)) {
            címke->setAutoFillBackground(false);
        } else if (auto *gomb = qobject_cast<QRadioButton *>(vezérlő)) {
            gomb->setPalette(mire.palette());
        }
    }
}

}  // namespace global
