#pragma once

#include <QProxyStyle>

/// The desktop's style with option circles, check boxes and scroll bars that grow with the letters beside them.
class FontSizedStyle final : public QProxyStyle {
  public:
    using QProxyStyle::QProxyStyle;

    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override;
};
