#include "ui/drawing/svg_picture.h"

#include <QPainter>
#include <QSvgRenderer>

QPixmap svg_picture(const QString &file, const QSize &size, double ratio) {
    QSvgRenderer drawing(file);
    Q_ASSERT(drawing.isValid());
    drawing.setAspectRatioMode(Qt::IgnoreAspectRatio);
    QPixmap picture(size * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    drawing.render(&painter, QRectF(QPointF(0, 0), size));
    return picture;
}
