#pragma once

#include <QProxyStyle>

/// The desktop's style with option circles, check boxes, scroll bars, sliders, icons and arrows that grow with the
/// letters beside them.
class FontSizedStyle final : public QProxyStyle {
  public:
    using QProxyStyle::QProxyStyle;

    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl part,
                         const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget) const override;
};
