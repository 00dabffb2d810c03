#include "lookup/corner_walk.h"

#include <cmath>

QPointF következő_sarok(const QPointF &innen, const QSizeF &ablak, const QSizeF &képernyő) {
    const double x = std::round(képernyő.width() - ablak.width());
    const double y = std::round(képernyő.height() - ablak.height());
    if (innen == QPointF(x, y))
        return {0, y};
    if (innen == QPointF(0, y))
        return {0, 0};
    if (innen == QPointF(x, 0))
        return {x, y};
    return {x, 0};
}

QPointF siklás(const QPointF &honnan, const QPointF &hová, int i) {
    return honnan + i * (hová - honnan) / siklás_lépései;
}
