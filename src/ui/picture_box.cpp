#include "ui/picture_box.h"

#include <QFontMetricsF>
#include <QPainter>

#include "ui/twips.h"

PictureBox::PictureBox(QWidget *parent) : QWidget(parent) {
    setAutoFillBackground(true);
}

void PictureBox::clear() {
    printed_.clear();
    update();
}

void PictureBox::print(const QPointF &position, const QString &text) {
    printed_.push_back({QRectF(position, text_size(text)), text, font()});
    update();
}

QSizeF PictureBox::inner_size() const {
    return {twips::from_pixels(width()), twips::from_pixels(height())};
}

QSizeF PictureBox::text_size(const QString &text) const {
    const QFontMetricsF metrics(font());
    return {twips::from_pixels(metrics.horizontalAdvance(text)), twips::from_pixels(metrics.height())};
}

QRectF PictureBox::printed_area() const {
    QRectF area;
    for (const Printed &one : printed_)
        area |= one.place;
    return area;
}

void PictureBox::set_background(const QColor &colour) {
    QPalette colours = palette();
    colours.setColor(QPalette::Window, colour);
    setPalette(colours);
}

void PictureBox::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    for (const Printed &one : printed_) {
        painter.setFont(one.font);
        const double ascent = QFontMetricsF(one.font).ascent();
        painter.drawText(one.place.topLeft() / twips::per_pixel + QPointF(0, ascent), one.text);
    }
}
