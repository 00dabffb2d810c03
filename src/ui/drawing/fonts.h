#pragma once

#include <QFont>
#include <QString>

/// The program's type face and the sizes of its letters.
namespace fonts {

extern const QString times_new_roman;
extern const QString times_new_roman_ce;

/// Names an installed face for each of the two names above that the system lacks. Call once, before the first window.
void substitute_missing_faces();

/// Gives `font` the size of `points` points (20 twips each), whatever resolution the system assumes.
void set_points(QFont &font, double points);
[[nodiscard]] double points(const QFont &font);

}  // namespace fonts
