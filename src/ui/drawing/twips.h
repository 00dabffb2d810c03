#pragma once

#include <QRect>
#include <QRectF>

/// Window code measures in twips: 1/1440 inch, 15 to a logical pixel, 20 to a point. Only ui/ turns them into pixels.
namespace twips {

inline constexpr double per_pixel = 15.0;
inline constexpr double per_point = 20.0;

[[nodiscard]] inline int to_pixels(double length) {
    return qRound(length / per_pixel);
}

[[nodiscard]] constexpr double from_pixels(double pixels) {
    return pixels * per_pixel;
}

/// Rounds the edges, not the size, so that what touches in twips touches in pixels.
[[nodiscard]] inline QRect to_pixels(const QRectF &place) {
    const int left = to_pixels(place.left());
    const int top = to_pixels(place.top());
    return {left, top, to_pixels(place.right()) - left, to_pixels(place.bottom()) - top};
}

}  // namespace twips
