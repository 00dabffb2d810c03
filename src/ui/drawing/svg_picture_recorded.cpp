#include <QPainter>
#include <QPicture>

#include "ui/drawing/recorded_size.h"
#include "ui/drawing/svg_picture.h"

// Where the toolkit has no reader of SVG, the build has recorded how each drawing is drawn (tools/record_drawing.cpp)
// and put that in the drawing's place.

QPixmap svg_picture(const QString &file, const QSize &size, double ratio) {
    QPicture drawing;
    [[maybe_unused]] const bool loaded = drawing.load(file);
    Q_ASSERT(loaded);
    QPixmap picture(size * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.scale(static_cast<double>(size.width()) / recorded_size,
                  static_cast<double>(size.height()) / recorded_size);
    painter.drawPicture(QPointF(0, 0), drawing);
    return picture;
}
