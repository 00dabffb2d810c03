#include "media/widgets/list_buttons.h"

#include <QIcon>
#include <algorithm>

#include "ui/drawing/svg_picture.h"

using namespace Qt::StringLiterals;

void rajzol(const QList<QPushButton *> &gombok, const char16_t *rajz) {
    // Places of the same height in twips may differ by a pixel.
    int magas = gombok.first()->height();
    for (const QPushButton *gomb : gombok)
        magas = std::min(magas, gomb->height());
    const QSize méret = QSize(magas, magas) * 3 / 5;
    const QString fájl = u":/media/%1.svg"_s.arg(QString::fromUtf16(rajz));
    const QIcon kép(svg_picture(fájl, méret, gombok.first()->devicePixelRatioF()));
    for (QPushButton *gomb : gombok) {
        gomb->setIcon(kép);
        gomb->setIconSize(méret);
    }
}

void engedélyez(QPushButton &gomb, bool lehet, QWidget &lista) {
    if (!lehet && gomb.hasFocus())
        lista.setFocus();
    gomb.setEnabled(lehet);
}
