#pragma once

#include <QLineEdit>
#include <QObject>

#include "ui/controls/list_box.h"

/// Keys that lead from a search box to its hits and their meanings: Down from the box into the hits, Right from there
/// to the meanings; Left back to the hits, Up from the first hit back to the box. A list without an item is not
/// entered. The controls must belong to one window, which the object belongs to as well.
class LookupKeys final : public QObject {
  public:
    LookupKeys(QLineEdit &search, ListBox &hits, ListBox &meanings);

    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    /// Where a key that is pressed in `from` leads; null for nowhere.
    [[nodiscard]] QWidget *leads_to(const QObject *from, int key) const;

    QLineEdit &search_;
    ListBox &hits_;
    ListBox &meanings_;
};
