#include "ui/drawing/contrast.h"

#include <algorithm>
#include <cmath>

namespace {

/// Of one component of a colour, 0 to 1, in the numbers of the guidelines.
double linear(double component) {
    return component <= 0.04045 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &colour) {
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

}  // namespace

double contrast(const QColor &one, const QColor &other) {
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor readable_behind(const QColor &letters, const QColor &background) {
    constexpr double step = 0.02;
    const QRgb end = contrast(letters, Qt::black) > contrast(letters, Qt::white) ? qRgb(0, 0, 0) : qRgb(255, 255, 255);
    const QColor goal(end);
    QColor colour = background;
    for (double way = step; way <= 1 && contrast(letters, colour) < readable_contrast; way += step) {
        const auto between = [way](double from, double to) { return static_cast<float>(from + way * (to - from)); };
        colour.setRgbF(between(background.redF(), goal.redF()), between(background.greenF(), goal.greenF()),
                       between(background.blueF(), goal.blueF()));
    }
    return colour;
}
