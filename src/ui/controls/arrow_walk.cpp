#include "ui/controls/arrow_walk.h"

#include <cmath>
#include <limits>

namespace {

/// A step aside is as far as this many steps ahead.
constexpr double aside_weight = 3;

}  // namespace

QPoint arrow_direction(Qt::Key key) {
    switch (key) {
        case Qt::Key_Left:
            return {-1, 0};
        case Qt::Key_Right:
            return {1, 0};
        case Qt::Key_Up:
            return {0, -1};
        case Qt::Key_Down:
            return {0, 1};
        default:
            return {0, 0};
    }
}

int arrow_leads_to(Qt::Key key, const QVector<QRect> &places, int from) {
    const QPoint ahead = arrow_direction(key);
    const QPoint aside(ahead.y(), ahead.x());
    int nearest = -1;
    double shortest = std::numeric_limits<double>::infinity();
    for (int i = 0; i < places.size(); ++i) {
        if (i == from || places[i].isEmpty())
            continue;
        const QPoint way = places[i].center() - places[from].center();
        const double steps_ahead = QPoint::dotProduct(way, ahead);
        const double steps_aside = std::abs(QPoint::dotProduct(way, aside));
        const double distance = steps_ahead + aside_weight * steps_aside;
        if (steps_ahead > 0 && distance < shortest) {
            shortest = distance;
            nearest = i;
        }
    }
    return nearest;
}
