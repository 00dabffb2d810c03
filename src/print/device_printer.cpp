#include "print/device_printer.h"

#include <QPageLayout>

namespace {

constexpr double twips_per_point = 20;
constexpr double twips_per_inch = 1440;

/// In dots; the toolkit reckons in 64ths.
constexpr double smallest_spacing = 1.0 / 64;

}  // namespace

MeasuringPrinter::MeasuringPrinter(QPagedPaintDevice &device) : device_(device), metrics_(font_, &device) {
    // Widths grow in step with the size then, at every resolution.
    font_.setHintingPreference(QFont::PreferNoHinting);
    // Letters that are spaced, if only by a trace, are not joined: "fi" of one piece could not be searched for.
    font_.setLetterSpacing(QFont::AbsoluteSpacing, smallest_spacing);
    use_font(font_);
}

void MeasuringPrinter::use_font(const QFont &font) {
    font_ = font;
    metrics_ = QFontMetricsF(font_, &device_);
}

void MeasuringPrinter::set_face(const Face &face) {
    QFont font = font_;
    font.setFamilies({face.name});
    font.setBold(face.bold);
    font.setItalic(face.italic);
    use_font(font);
}

void MeasuringPrinter::set_font_size(double points) {
    QFont font = font_;
    font.setPointSizeF(points);
    use_font(font);
}

double MeasuringPrinter::font_size() const {
    return font_.pointSizeF();
}

void MeasuringPrinter::set_orientation(Orientation orientation) {
    device_.setPageOrientation(orientation == Orientation::portrait ? QPageLayout::Portrait : QPageLayout::Landscape);
}

double MeasuringPrinter::page_width() const {
    return device_.pageLayout().paintRect(QPageLayout::Point).width() * twips_per_point;
}

double MeasuringPrinter::page_height() const {
    return device_.pageLayout().paintRect(QPageLayout::Point).height() * twips_per_point;
}

double MeasuringPrinter::dots() const {
    return device_.logicalDpiY() / twips_per_inch;
}

double MeasuringPrinter::text_width(const QString &text) const {
    return metrics_.horizontalAdvance(text) / dots();
}

double MeasuringPrinter::text_height(const QString &) const {
    return metrics_.height() / dots();
}

void MeasuringPrinter::draw_text(QPainter &painter, const QFont &font, const QPointF &place,
                                 const QString &text) const {
    const double ascent = QFontMetricsF(font, &device_).ascent();
    painter.setFont(font);
    painter.drawText(place * dots() + QPointF(0, ascent), text);
}

bool DevicePrinter::ready() {
    if (!failed_ && !painter_.isActive())
        failed_ = !painter_.begin(&device());
    return !failed_;
}

void DevicePrinter::draw(const QPointF &place, const QString &text) {
    if (ready())
        draw_text(painter_, font(), place, text);
}

bool DevicePrinter::begin_next_page() {
    failed_ = !ready() || !device().newPage();
    return !failed_;
}

bool DevicePrinter::finish() {
    return ready() && painter_.end();
}
