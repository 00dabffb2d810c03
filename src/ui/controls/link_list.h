#pragma once

#include <QAbstractItemModel>
#include <QTextBrowser>

/// The lines of a model as text, each with a part that is a link: a click on it chooses the line, as Enter does while
/// the link has the focus; Tab goes to the first link and from link to link. Is not seen while the model has no line.
/// What has no room is scrolled to, and is told by the tool tip; a single line that is cut off ends with "…". The
/// letters are a little smaller than those of other controls.
class LinkList final : public QTextBrowser {
    Q_OBJECT

  public:
    /// The roles of the model that give where the link of a line begins and how long it is, in characters.
    struct Roles {
        int link_start;
        int link_length;
    };
    enum class Layout {
        /// One line of the model below the other, broken where there is no room.
        lines,
        /// All of them in one line, one behind the other.
        single_line,
    };

    /// `model` must outlive the list.
    LinkList(QAbstractItemModel *model, Roles roles, Layout layout);

  Q_SIGNALS:
    void chosen(int line);

  protected:
    void changeEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

  private:
    void show_lines();
    void put_in_the_middle();
    [[nodiscard]] QString html_of(const QModelIndex &line) const;

    QAbstractItemModel *model_;
    const Roles roles_;
    const Layout layout_;
};
