#pragma once

#include <QPixmap>
#include <QSize>
#include <QString>

/// A drawing of the program's own (a file that is part of it), drawn as sharp as the screen is: `size` logical pixels,
/// filled whole whatever its proportions, at `ratio` pixels of the device to a logical one.
[[nodiscard]] QPixmap svg_picture(const QString &file, const QSize &size, double ratio);
