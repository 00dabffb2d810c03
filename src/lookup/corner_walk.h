#pragma once

#include <QPointF>
#include <QSizeF>

/// Where the mini window goes when it is told to go into a corner: from a corner to the next one clockwise, from
/// anywhere else to the top right one. Places are top left corners in twips; `képernyő` begins at 0, 0.
[[nodiscard]] QPointF következő_sarok(const QPointF &innen, const QSizeF &ablak, const QSizeF &képernyő);

/// Place on the way from one to the other after step `i` of siklás_lépései.
[[nodiscard]] QPointF siklás(const QPointF &honnan, const QPointF &hová, int i);
inline constexpr int siklás_lépései = 100;
