#pragma once

#include <QLineEdit>

/// A text box for a word to look up, of any length. What comes into it in one piece, pasted or dropped, loses its line
/// ends and the blanks around it; what is typed stays as it is.
class SearchBox final : public QLineEdit {
  public:
    SearchBox();

  protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

  private:
    void take(const QString &text) { insert(text.simplified()); }
};
