#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QVector>

/// Where a window of this size may open that was left at `hol`: there, if its top left corner can be taken hold of on
/// one of the screens; otherwise at the nearest place at which one of them holds all of the window. Top left corners,
/// in twips.
[[nodiscard]] QPointF képernyőre(const QPointF &hol, const QSizeF &ablak, const QVector<QRectF> &képernyők);

/// The place nearest to `hol` at which this screen holds all of the window; of a larger window, its top left part.
[[nodiscard]] QPointF képernyőbe(const QPointF &hol, const QSizeF &ablak, const QRectF &képernyő);
