#include "media/picture_buttons.h"

#include <QIcon>

#include "ui/svg_picture.h"

void rajzol(QPushButton &gomb, const char16_t *rajz) {
    const int magas = gomb.height() * 3 / 5;
    const QSize méret(magas, magas);
    const QString fájl = QStringLiteral(":/media/%1.svg").arg(QString::fromUtf16(rajz));
    gomb.setIcon(QIcon(svg_picture(fájl, méret, gomb.devicePixelRatioF())));
    gomb.setIconSize(méret);
}
