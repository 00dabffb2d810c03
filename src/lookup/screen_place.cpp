#include "lookup/screen_place.h"

#include <algorithm>
#include <limits>

namespace {

/// So much of the top left corner must be seen for the window to be taken hold of.
constexpr QPointF fogható(900, 300);

}  // namespace

QPointF képernyőre(const QPointF &hol, const QSizeF &ablak, const QVector<QRectF> &képernyők) {
    const auto látszik = [&képernyők](const QPointF &pont) {
        return std::any_of(képernyők.cbegin(), képernyők.cend(),
                           [&pont](const QRectF &képernyő) { return képernyő.contains(pont); });
    };
    if (látszik(hol) && látszik(hol + fogható))
        return hol;
    QPointF legjobb = hol;
    double legrövidebb = std::numeric_limits<double>::infinity();
    for (const QRectF &képernyő : képernyők) {
        const QPointF benne = képernyőbe(hol, ablak, képernyő);
        const QPointF út = benne - hol;
        if (const double hossz = QPointF::dotProduct(út, út); hossz < legrövidebb) {
            legrövidebb = hossz;
            legjobb = benne;
        }
    }
    return legjobb;
}

QPointF képernyőbe(const QPointF &hol, const QSizeF &ablak, const QRectF &képernyő) {
    return {std::max(std::min(hol.x(), képernyő.right() - ablak.width()), képernyő.left()),
            std::max(std::min(hol.y(), képernyő.bottom() - ablak.height()), képernyő.top())};
}
