#include "drawing/record.h"

#include <QBuffer>
#include <QPainter>
#include <QPicture>
#include <QSvgRenderer>

#include "ui/drawing/recorded_size.h"

QByteArray record_drawing(const QByteArray &svg) {
    QSvgRenderer drawing(svg);
    if (!drawing.isValid())
        return {};
    drawing.setAspectRatioMode(Qt::IgnoreAspectRatio);
    QPicture picture;
    QPainter painter(&picture);
    drawing.render(&painter, QRectF(0, 0, recorded_size, recorded_size));
    painter.end();
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    picture.save(&bytes);
    return bytes.data();
}
