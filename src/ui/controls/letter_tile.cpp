#include "ui/controls/letter_tile.h"

#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "ui/drawing/twips.h"

namespace {

constexpr QColor paper(0xff, 0xfd, 0xf5);
constexpr QColor edge(0x8a, 0x7a, 0x55);
constexpr QColor ink(0x22, 0x22, 0x22);
/// Of the height of a letter: the room at its sides, and the roundness of the corners.
constexpr double side = 0.2;
constexpr double roundness = 0.12;

}  // namespace

LetterTile::LetterTile(const QString &letter, QWidget *parent) : QLabel(letter, parent) {
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::OpenHandCursor);
}

QSizeF LetterTile::size_of(const QString &letter, const QFont &font) {
    const QFontMetricsF metrics(font);
    const double height = metrics.height();
    // No tile is so narrow that it could not be gripped.
    const double width = std::max(metrics.horizontalAdvance(letter) + 2 * side * height, height * 0.6);
    return QSizeF(std::ceil(width), std::ceil(height * 1.1)) * twips::per_pixel;
}

void LetterTile::mousePressEvent(QMouseEvent *event) {
    Q_EMIT mouse_pressed(event->position() * twips::per_pixel);
}

void LetterTile::mouseMoveEvent(QMouseEvent *event) {
    Q_EMIT mouse_moved(event->buttons(), event->position() * twips::per_pixel);
}

void LetterTile::mouseReleaseEvent(QMouseEvent *event) {
    // Not the business of what the tile lies on.
    event->accept();
}

void LetterTile::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double line = hasFocus() ? std::max(2.0, height() * 0.05) : std::max(1.0, height() * 0.02);
    const QRectF face = QRectF(rect()).adjusted(line / 2, line / 2, -line / 2, -line / 2);
    painter.setPen(QPen(hasFocus() ? palette().color(QPalette::Highlight) : edge, line));
    painter.setBrush(paper);
    painter.drawRoundedRect(face, height() * roundness, height() * roundness);
    painter.setPen(ink);
    painter.setFont(font());
    painter.drawText(rect(), static_cast<int>(Qt::AlignCenter), text());
}
