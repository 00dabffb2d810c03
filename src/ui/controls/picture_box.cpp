#include "ui/controls/picture_box.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "ui/drawing/twips.h"

PictureBox::PictureBox(QWidget *parent) : QWidget(parent) {
    setAutoFillBackground(true);
}

void PictureBox::clear() {
    printed_.clear();
    update();
}

void PictureBox::print(const QPointF &position, const QString &text) {
    printed_.push_back({QRectF(position, text_size(text, font())), text, font()});
    update();
}

void PictureBox::print_centred(const QString &text) {
    const QSizeF rest = inner_size() - text_size(text, font());
    print({rest.width() / 2, rest.height() / 2}, text);
}

void PictureBox::set_picture(const QPixmap &picture) {
    picture_ = picture;
    update();
}

QSizeF PictureBox::inner_size() const {
    return QSizeF(contentsRect().size()) * twips::per_pixel;
}

QSizeF PictureBox::text_size(const QString &text, const QFont &font) {
    const QFontMetricsF metrics(font);
    QSizeF size(0, 0);
    for (const QString &line : text.split(u'\n')) {
        size.rwidth() = std::max(size.width(), metrics.horizontalAdvance(line));
        size.rheight() += metrics.height();
    }
    return size * twips::per_pixel;
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
    if (!picture_.isNull()) {
        // One that fits but for a rounded pixel stays as sharp as it is.
        const QSizeF rest = size() - picture_.deviceIndependentSize();
        const bool fits = std::abs(rest.width()) <= 1 && std::abs(rest.height()) <= 1;
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        if (fits)
            painter.drawPixmap(QPointF(0, 0), picture_);
        else
            painter.drawPixmap(rect(), picture_);
    }
    painter.translate(contentsRect().topLeft());
    for (const Printed &one : printed_) {
        painter.setFont(one.font);
        const QFontMetricsF metrics(one.font);
        const double middle = one.place.center().x() / twips::per_pixel;
        double baseline = one.place.top() / twips::per_pixel + metrics.ascent();
        for (const QString &line : one.text.split(u'\n')) {
            painter.drawText(QPointF(middle - metrics.horizontalAdvance(line) / 2, baseline), line);
            baseline += metrics.height();
        }
    }
}
