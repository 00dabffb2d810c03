#include "print/page_recorder.h"

#include <QPageLayout>
#include <utility>

namespace {

constexpr double twips_per_point = 20;

/// The font for a painter whose unit is a twip.
QFont in_twips(const QFont &font) {
    QFont scaled = font;
    scaled.setPixelSize(qRound(font.pointSizeF() * twips_per_point));
    return scaled;
}

}  // namespace

PageRecorder::Page &PageRecorder::page() {
    if (pages_.isEmpty())
        pages_.append(Page());
    return pages_.back();
}

void PageRecorder::draw(const QPointF &place, const QString &text) {
    page().append({place, text, font()});
}

bool PageRecorder::begin_next_page() {
    page();
    pages_.append(Page());
    return true;
}

bool PageRecorder::finish() {
    page();
    return true;
}

QSizeF PageRecorder::paper_size() const {
    return device().pageLayout().fullRect(QPageLayout::Point).size() * twips_per_point;
}

void PageRecorder::paint(QPainter &painter, int page) const {
    painter.save();
    painter.translate(device().pageLayout().paintRect(QPageLayout::Point).topLeft() * twips_per_point);
    painter.setPen(Qt::black);
    for (const Printed &one : pages_.at(page)) {
        const QFont font = in_twips(one.font);
        painter.setFont(font);
        // The metrics of a painter's own device would count in its dots.
        const double ascent = QFontMetricsF(font).ascent();
        painter.drawText(one.place + QPointF(0, ascent), one.text);
    }
    painter.restore();
}

bool PageRecorder::print_all() {
    QPainter painter;
    if (!painter.begin(&device()))
        return false;
    for (const Page &page : std::as_const(pages_)) {
        if (&page != &pages_.constFirst() && !device().newPage())
            return false;
        for (const Printed &one : page)
            draw_text(painter, one.font, one.place, one.text);
    }
    return painter.end();
}
