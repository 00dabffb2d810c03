#pragma once

#include <QStyledItemDelegate>

/// Draws the items of a view with parts of their texts in bold letters: those that a role of the model gives as
/// QList<QPoint> of beginning (x) and length (y), in characters. A text that is wider than its cell ends with "…".
class MarkedText final : public QStyledItemDelegate {
  public:
    explicit MarkedText(int marks_role, QObject *parent = nullptr)
        : QStyledItemDelegate(parent), marks_role_(marks_role) {}

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;

  private:
    const int marks_role_;
};
