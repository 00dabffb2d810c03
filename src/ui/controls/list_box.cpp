#include "ui/controls/list_box.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyledItemDelegate>
#include <QToolTip>

namespace {

/// No list is so wide that more could be seen; laying out a text of a million characters takes seconds.
constexpr int longest_shown = 1000;

class ShortText final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant &value, const QLocale &) const override {
        const QString whole = value.toString();
        QString text = whole.size() > longest_shown ? whole.left(longest_shown) + u'…' : whole;
        return text.replace(u'\n', u' ').replace(QChar::Null, u' ');
    }

    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        if (!(option->state & QStyle::State_Selected))
            return;
        // Themes have colours of their own for what is selected, almost white where the list has not the focus: a
        // selected item is to them one that has a background.
        const QPalette colours = option->palette;
        option->backgroundBrush = colours.brush(QPalette::Active, QPalette::Highlight);
        option->palette.setBrush(QPalette::All, QPalette::Text,
                                 colours.brush(QPalette::Active, QPalette::HighlightedText));
        option->state &= ~QStyle::State_Selected;
    }

    /// Shows the whole text of an item that the list cuts off; otherwise the tip of the list.
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override {
        const QString text = displayText(index.data(), {});
        const bool cut = option.fontMetrics.horizontalAdvance(text) > option.rect.width();
        QToolTip::showText(event->globalPos(), cut ? text : view->toolTip(), view);
        return true;
    }
};

}  // namespace

/// The items of a list that has its own. Appending is what a search does thousands of times.
class ListBox::Texts final : public QAbstractListModel {
  public:
    using QAbstractListModel::QAbstractListModel;

    void add(const QString &text) {
        const int row = static_cast<int>(texts_.size());
        beginInsertRows({}, row, row);
        texts_.append(text);
        endInsertRows();
    }

    void clear() {
        if (texts_.isEmpty())
            return;
        beginResetModel();
        texts_.clear();
        endResetModel();
    }

    void set(const QStringList &texts) {
        beginResetModel();
        texts_ = texts;
        endResetModel();
    }

    [[nodiscard]] const QStringList &texts() const { return texts_; }

    int rowCount(const QModelIndex &parent) const override {
        return parent.isValid() ? 0 : static_cast<int>(texts_.size());
    }

    QVariant data(const QModelIndex &index, int role) const override {
        return role == Qt::DisplayRole ? QVariant(texts_.value(index.row())) : QVariant();
    }

  private:
    QStringList texts_;
};

ListBox::ListBox(QWidget *parent) : QListView(parent), texts_(new Texts(this)) {
    setModel(texts_);
    set_up();
}

ListBox::ListBox(QAbstractItemModel *model, int column, QItemSelectionModel *selection) {
    setModel(model);
    setModelColumn(column);
    if (selection) {
        delete selectionModel();
        setSelectionModel(selection);
    }
    set_up();
}

void ListBox::set_up() {
    setItemDelegate(new ShortText(this));
    setEditTriggers(NoEditTriggers);
    setUniformItemSizes(true);
    setTabKeyNavigation(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void ListBox::add(const QString &text) {
    Q_ASSERT(texts_);
    texts_->add(text);
}

void ListBox::clear() {
    Q_ASSERT(texts_);
    texts_->clear();
}

void ListBox::set_items(const QStringList &texts) {
    Q_ASSERT(texts_);
    texts_->set(texts);
}

int ListBox::count() const {
    return model()->rowCount();
}

QString ListBox::item(int index) const {
    return model()->index(index, modelColumn()).data().toString();
}

QStringList ListBox::items() const {
    if (texts_)
        return texts_->texts();
    QStringList all;
    all.reserve(count());
    for (int i = 0; i < count(); ++i)
        all.append(item(i));
    return all;
}

int ListBox::selected() const {
    const QModelIndex current = currentIndex();
    return current.isValid() ? current.row() : -1;
}

void ListBox::select(int index) {
    selecting_ = true;
    setCurrentIndex(model()->index(index, modelColumn()));
    selecting_ = false;
    announce();
}

void ListBox::show_selected_in_middle() {
    if (selected() >= 0)
        scrollTo(currentIndex(), PositionAtCenter);
}

void ListBox::currentChanged(const QModelIndex &current, const QModelIndex &previous) {
    QListView::currentChanged(current, previous);
    if (!selecting_)
        announce();
}

QItemSelectionModel::SelectionFlags ListBox::selectionCommand(const QModelIndex &index, const QEvent *event) const {
    const auto command = QListView::selectionCommand(index, event);
    // With Ctrl the toolkit takes the highlight off the selected item, which stays the selected one.
    return command.testFlag(QItemSelectionModel::Deselect) ? QItemSelectionModel::NoUpdate : command;
}

void ListBox::keyPressEvent(QKeyEvent *event) {
    // That of the number pad is one, too.
    const Qt::KeyboardModifiers held = event->modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier);
    if (event->key() != Qt::Key_Delete || held != Qt::NoModifier) {
        QListView::keyPressEvent(event);
        return;
    }
    if (!event->isAutoRepeat())
        Q_EMIT deletePressed();
}

void ListBox::mousePressEvent(QMouseEvent *event) {
    const QModelIndex pressed = indexAt(event->position().toPoint());
    // A click below the last item changes nothing; the toolkit would take the highlight off the selected item.
    if (!pressed.isValid())
        return;
    const bool again = pressed == currentIndex();
    QListView::mousePressEvent(event);
    if (again)
        announce();
}

void ListBox::mouseDoubleClickEvent(QMouseEvent *event) {
    QListView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && indexAt(event->position().toPoint()).isValid())
        Q_EMIT itemDoubleClicked();
}

void ListBox::announce() {
    if (selected() >= 0)
        Q_EMIT itemSelected();
}
