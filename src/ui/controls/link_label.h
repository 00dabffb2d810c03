#pragma once

#include <QFocusEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>

using namespace Qt::StringLiterals;

/// A label that is one link: a click anywhere on it activates the link, as Enter does while it has the focus.
class LinkLabel final : public QLabel {
  public:
    explicit LinkLabel(const QString &caption) : QLabel(u"<a href='#'>%1</a>"_s.arg(caption.toHtmlEscaped())) {
        setTextInteractionFlags(Qt::LinksAccessibleByKeyboard);
        setCursor(Qt::PointingHandCursor);
    }

  protected:
    void mousePressEvent(QMouseEvent *event) override { event->setAccepted(event->button() == Qt::LeftButton); }

    void mouseReleaseEvent(QMouseEvent *event) override {
        if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
            Q_EMIT linkActivated(u"#"_s);
    }

    void keyPressEvent(QKeyEvent *event) override {
        if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
            QLabel::keyPressEvent(event);
        else if (!event->isAutoRepeat())
            Q_EMIT linkActivated(u"#"_s);
    }

    /// Marks the link at once; the toolkit would do so at the second Tab.
    void focusInEvent(QFocusEvent *event) override {
        QLabel::focusInEvent(event);
        if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
            focusNextPrevChild(event->reason() == Qt::TabFocusReason);
    }
};
