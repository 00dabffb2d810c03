#pragma once

#include <QAbstractListModel>
#include <QListView>
#include <QStringList>

/// A list of texts of which one may be selected. Selecting an item is an event wherever it comes from: a click, a key,
/// or a call of select(), even of the item that is selected already.
class ListBox : public QListView {
    Q_OBJECT

  public:
    /// A list with items of its own.
    explicit ListBox(QWidget *parent = nullptr);
    /// A list that shows a column of `model`, which must outlive it and is changed by its owner, not by add() and
    /// clear(). Lists that are given the same `selection`, which must outlive them too, always have the same item
    /// selected; without one the list has a selection of its own.
    explicit ListBox(QAbstractItemModel *model, int column = 0, QItemSelectionModel *selection = nullptr);

    void add(const QString &text);
    void clear();
    /// Replaces all items at once; none is selected afterwards.
    void set_items(const QStringList &texts);

    [[nodiscard]] int count() const;
    [[nodiscard]] QString item(int index) const;
    [[nodiscard]] QStringList items() const;
    /// Index of the selected item; −1 when there is none.
    [[nodiscard]] int selected() const;
    /// Selects an item; no item when `index` is −1.
    void select(int index);
    /// Scrolls the selected item to the middle, as far as the list goes on.
    void show_selected_in_middle();

  Q_SIGNALS:
    /// An item was selected; selected() is its index.
    void itemSelected();
    void itemDoubleClicked();
    /// Delete was pressed; once for a key that is held down.
    void deletePressed();

  protected:
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    [[nodiscard]] QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                                       const QEvent *event) const override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

  private:
    class Texts;

    void set_up();
    void announce();

    Texts *texts_ = nullptr;
    /// True while select() moves the selection, which announces itself.
    bool selecting_ = false;
};
