#pragma once

#include <QPoint>
#include <QRect>
#include <QVector>
#include <Qt>

/// The step of an arrow key, one to a side; null for every other key.
[[nodiscard]] QPoint arrow_direction(Qt::Key key);

/// Where an arrow key leads among things that lie on a surface: the index of the nearest place whose middle lies on the
/// side of the key, seen from the middle of place `from`; −1 for no such place and for every other key. What lies
/// straight ahead counts as nearer than what lies aside. Empty places are passed over.
[[nodiscard]] int arrow_leads_to(Qt::Key key, const QVector<QRect> &places, int from);
