#pragma once

#include <QByteArray>

/// What drawing an SVG image does, step by step, as the toolkit's QPicture keeps it; empty when it is no SVG image. The
/// drawing is `recorded_size` wide and high, whatever its own size and proportions.
[[nodiscard]] QByteArray record_drawing(const QByteArray &svg);
