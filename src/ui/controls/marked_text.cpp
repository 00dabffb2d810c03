#include "ui/controls/marked_text.h"

#include <QApplication>
#include <QList>
#include <QPainter>
#include <QPoint>
#include <QTextCharFormat>
#include <QTextLayout>
#include <limits>

namespace {

QList<QTextLayout::FormatRange> bold(const QList<QPoint> &marks) {
    QList<QTextLayout::FormatRange> formats;
    for (const QPoint &mark : marks) {
        QTextLayout::FormatRange range;
        range.start = mark.x();
        range.length = mark.y();
        range.format.setFontWeight(QFont::Bold);
        formats.append(range);
    }
    return formats;
}

/// Lays the text out in one line; the width it takes.
double lay_out(QTextLayout &layout) {
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(std::numeric_limits<int>::max() / 256.0);
    layout.endLayout();
    return line.naturalTextWidth();
}

}  // namespace

void MarkedText::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const {
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const QStyle *style = item.widget ? item.widget->style() : QApplication::style();
    QString text = item.text;
    item.text.clear();
    style->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);

    const QList<QTextLayout::FormatRange> formats = bold(index.data(marks_role_).value<QList<QPoint>>());
    const QRect place = style->subElementRect(QStyle::SE_ItemViewItemText, &item, item.widget).adjusted(4, 0, -4, 0);
    QTextLayout layout(text, item.font);
    layout.setFormats(formats);
    if (lay_out(layout) > place.width()) {
        const QTextLine line = layout.lineAt(0);
        const int dots = QFontMetrics(item.font).horizontalAdvance(QChar(0x2026));
        text = text.first(line.xToCursor(place.width() - dots, QTextLine::CursorOnCharacter)) + QChar(0x2026);
        layout.setText(text);
        lay_out(layout);
    }
    const bool selected = item.state.testFlag(QStyle::State_Selected);
    const QPalette::ColorGroup group =
        item.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
    painter->save();
    painter->setClipRect(place);
    painter->setPen(item.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text));
    layout.draw(painter, QPointF(place.left(), place.top() + (place.height() - layout.boundingRect().height()) / 2));
    painter->restore();
}
