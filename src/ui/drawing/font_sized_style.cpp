#include "ui/drawing/font_sized_style.h"

#include <QApplication>
#include <QFontMetrics>
#include <QList>
#include <QPainter>
#include <QPolygonF>
#include <QStyleOptionComplex>
#include <QStyleOptionSlider>
#include <QStyleOptionSpinBox>
#include <QWidget>
#include <algorithm>

namespace {

// Of the height of a line of text.
constexpr double indicator_share = 0.75;
constexpr double arrow_share = 0.45;
/// Arrows beside letters less enlarged than this are those of the desktop.
constexpr double clearly_larger = 1.25;

/// How many times as large as the desktop's own letters those of a control are.
double enlargement(const QWidget &widget) {
    return double(widget.fontMetrics().height()) / QFontMetrics(QApplication::font()).height();
}

enum class Growth { none, with_letters, beside_letters };

Growth growth_of(QStyle::PixelMetric metric) {
    switch (metric) {
        case QStyle::PM_IndicatorWidth:
        case QStyle::PM_IndicatorHeight:
        case QStyle::PM_ExclusiveIndicatorWidth:
        case QStyle::PM_ExclusiveIndicatorHeight:
        case QStyle::PM_ScrollBarExtent:
            return Growth::beside_letters;
        case QStyle::PM_MessageBoxIconSize:
        case QStyle::PM_SmallIconSize:
        case QStyle::PM_ButtonIconSize:
        case QStyle::PM_ListViewIconSize:
        case QStyle::PM_SliderThickness:
        case QStyle::PM_SliderControlThickness:
        case QStyle::PM_SliderLength:
            return Growth::with_letters;
        default:
            return Growth::none;
    }
}

/// The parts of a control that change their width when its arrows get wider.
struct ArrowParts {
    QStyle::SubControl arrow;
    QStyle::SubControl second_arrow;
    QStyle::SubControl text;
};

constexpr ArrowParts spin_box{QStyle::SC_SpinBoxUp, QStyle::SC_SpinBoxDown, QStyle::SC_SpinBoxEditField};
constexpr ArrowParts combo_box{QStyle::SC_ComboBoxArrow, QStyle::SC_ComboBoxArrow, QStyle::SC_ComboBoxEditField};

struct Arrow {
    QStyle::SubControl part;
    Qt::ArrowType points;
    bool works;
};

/// The arrows that a control shows.
QList<Arrow> arrows_of(QStyle::ComplexControl control, const QStyleOptionComplex &option) {
    const bool works = option.state & QStyle::State_Enabled;
    if (control == QStyle::CC_ComboBox && option.subControls & QStyle::SC_ComboBoxArrow)
        return {{QStyle::SC_ComboBoxArrow, Qt::DownArrow, works}};
    if (const auto *spin = qstyleoption_cast<const QStyleOptionSpinBox *>(&option);
        control == QStyle::CC_SpinBox && spin)
        return {
            {QStyle::SC_SpinBoxUp, Qt::UpArrow, works && spin->stepEnabled & QAbstractSpinBox::StepUpEnabled},
            {QStyle::SC_SpinBoxDown, Qt::DownArrow, works && spin->stepEnabled & QAbstractSpinBox::StepDownEnabled}};
    if (const auto *bar = qstyleoption_cast<const QStyleOptionSlider *>(&option);
        control == QStyle::CC_ScrollBar && bar) {
        const bool lies = bar->orientation == Qt::Horizontal;
        return {{QStyle::SC_ScrollBarSubLine, lies ? Qt::LeftArrow : Qt::UpArrow, works},
                {QStyle::SC_ScrollBarAddLine, lies ? Qt::RightArrow : Qt::DownArrow, works}};
    }
    return {};
}

/// A triangle that points where `type` says, in the middle of `place`, over the desktop's smaller one.
void draw_arrow(QPainter &painter, Qt::ArrowType type, const QRect &place, double size, const QColor &colour) {
    const double half = std::min<double>({size, place.width() * 0.7, place.height() * 0.7}) / 2;
    if (half <= 0)
        return;
    QPolygonF triangle{{-half, -half / 2}, {half, -half / 2}, {0, half / 2}};
    constexpr double right_angle = 90;
    const double turn = type == Qt::DownArrow ? 0 : type == Qt::LeftArrow ? 1 : type == Qt::UpArrow ? 2 : 3;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(place).center());
    painter.rotate(turn * right_angle);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawPolygon(triangle);
    painter.restore();
}

}  // namespace

int FontSizedStyle::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const {
    const int usual = QProxyStyle::pixelMetric(metric, option, widget);
    const Growth growth = widget ? growth_of(metric) : Growth::none;
    if (growth == Growth::none)
        return usual;
    if (growth == Growth::with_letters)
        return qRound(usual * std::max(1.0, enlargement(*widget)));
    return std::max(usual, qRound(widget->fontMetrics().height() * indicator_share));
}

QRect FontSizedStyle::subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl part,
                                     const QWidget *widget) const {
    QRect usual = QProxyStyle::subControlRect(control, option, part, widget);
    if ((control != CC_SpinBox && control != CC_ComboBox) || !widget)
        return usual;
    const ArrowParts &parts = control == CC_SpinBox ? spin_box : combo_box;
    const int arrows = QProxyStyle::subControlRect(control, option, parts.arrow, widget).width();
    const int wider = qRound(widget->fontMetrics().height() * indicator_share) - arrows;
    if (wider > 0 && (part == parts.arrow || part == parts.second_arrow))
        usual.setLeft(usual.left() - wider);
    else if (wider > 0 && part == parts.text)
        usual.setRight(usual.right() - wider);
    return usual;
}

void FontSizedStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                                        const QWidget *widget) const {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (!widget || enlargement(*widget) < clearly_larger)
        return;
    const double size = widget->fontMetrics().height() * arrow_share;
    for (const Arrow &arrow : arrows_of(control, *option)) {
        const QPalette::ColorGroup group = arrow.works ? QPalette::Active : QPalette::Disabled;
        draw_arrow(*painter, arrow.points, subControlRect(control, option, arrow.part, widget), size,
                   option->palette.color(group, QPalette::ButtonText));
    }
}
