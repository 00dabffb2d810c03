#pragma once

#include <QColor>

/// The contrast ratio of two colours, 1 to 21 (W3C, Web Content Accessibility Guidelines 2.2, "contrast ratio"); text
/// of the usual size can be read from 4.5 on.
[[nodiscard]] double contrast(const QColor &one, const QColor &other);

inline constexpr double readable_contrast = 4.5;

/// `background`, as much darker or lighter as `letters` on it need to be read.
[[nodiscard]] QColor readable_behind(const QColor &letters, const QColor &background);
