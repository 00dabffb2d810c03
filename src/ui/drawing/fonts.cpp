#include "ui/drawing/fonts.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QScreen>
#include <QStringList>

#include "ui/drawing/twips.h"

using namespace Qt::StringLiterals;

namespace fonts {

const QString times_new_roman = u"Times New Roman"_s;
const QString times_new_roman_ce = u"Times New Roman CE"_s;

namespace {

/// Faces of the same metrics or, after them, of the same kind, in order of preference. All have ő and ű.
const QStringList same_kind{times_new_roman,   u"Liberation Serif"_s, u"Tinos"_s,
                            u"Nimbus Roman"_s, u"FreeSerif"_s,        u"DejaVu Serif"_s};

double dots_per_inch() {
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? screen->logicalDotsPerInchY() : 96;
}

constexpr double twips_per_inch = 1440;

}  // namespace

void substitute_missing_faces() {
    const QStringList installed = QFontDatabase::families();
    for (const QString &wanted : {times_new_roman, times_new_roman_ce}) {
        if (installed.contains(wanted))
            continue;
        for (const QString &face : same_kind) {
            if (installed.contains(face)) {
                QFont::insertSubstitution(wanted, face);
                break;
            }
        }
    }
}

void set_points(QFont &font, double points) {
    // A font's point is 1/72 of what the system takes for an inch; here an inch is always 96 logical pixels.
    font.setPointSizeF(points * (twips_per_inch / twips::per_pixel) / dots_per_inch());
}

double points(const QFont &font) {
    return font.pointSizeF() * dots_per_inch() / (twips_per_inch / twips::per_pixel);
}

}  // namespace fonts
