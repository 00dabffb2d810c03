#include "ui/drawing/font_sized_style.h"

#include <QFontMetrics>
#include <QWidget>
#include <algorithm>

namespace {

/// Of the height of a line of text.
constexpr double indicator_share = 0.75;

bool stands_beside_letters(QStyle::PixelMetric metric) {
    switch (metric) {
        case QStyle::PM_IndicatorWidth:
        case QStyle::PM_IndicatorHeight:
        case QStyle::PM_ExclusiveIndicatorWidth:
        case QStyle::PM_ExclusiveIndicatorHeight:
        case QStyle::PM_ScrollBarExtent:
            return true;
        default:
            return false;
    }
}

}  // namespace

int FontSizedStyle::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const {
    const int usual = QProxyStyle::pixelMetric(metric, option, widget);
    if (!widget || !stands_beside_letters(metric))
        return usual;
    return std::max(usual, qRound(widget->fontMetrics().height() * indicator_share));
}

QRect FontSizedStyle::subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl part,
                                     const QWidget *widget) const {
    QRect usual = QProxyStyle::subControlRect(control, option, part, widget);
    if (control != CC_SpinBox || !widget)
        return usual;
    const int arrows = QProxyStyle::subControlRect(control, option, SC_SpinBoxUp, widget).width();
    const int wider = qRound(widget->fontMetrics().height() * indicator_share) - arrows;
    if (wider > 0 && (part == SC_SpinBoxUp || part == SC_SpinBoxDown))
        usual.setLeft(usual.left() - wider);
    else if (wider > 0 && part == SC_SpinBoxEditField)
        usual.setRight(usual.right() - wider);
    return usual;
}
