#pragma once

#include <QString>
#include <QStringList>
#include <functional>

/// Index of the font that is selected when the fonts of a printer have been listed: "Times New Roman CE", else "Times
/// New Roman", else `helyettes`, the face that stands in for them on the screen (however its name is capitalised), else
/// the first serif face, else the first; −1 for an empty list. `talpas` tells whether a face has serifs.
[[nodiscard]] int választott_betűtípus(const QStringList &betűtípusok, const QString &helyettes,
                                       const std::function<bool(const QString &)> &talpas);

/// Whether the installed face `név` says of itself that its letters have serifs.
[[nodiscard]] bool talpas_betűtípus(const QString &név);
