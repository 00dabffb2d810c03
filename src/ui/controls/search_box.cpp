#include "ui/controls/search_box.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>

#include "ui/controls/unlimited_line_edit.h"

namespace {

QString copied(QClipboard::Mode where = QClipboard::Clipboard) {
    return QGuiApplication::clipboard()->text(where);
}

/// Of the toolkit's own menu of a text box; null when it has none.
QAction *paste_item(const QMenu &menu) {
    for (QAction *item : menu.actions()) {
        if (item->text().startsWith(QLineEdit::tr("&Paste")))
            return item;
    }
    return nullptr;
}

}  // namespace

SearchBox::SearchBox() {
    take_any_length(*this);
}

void SearchBox::keyPressEvent(QKeyEvent *event) {
    if (!event->matches(QKeySequence::Paste)) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    // That one pastes what is selected.
    const bool selection = event->modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
    take(copied(selection ? QClipboard::Selection : QClipboard::Clipboard));
}

void SearchBox::mouseReleaseEvent(QMouseEvent *event) {
    if (event->button() != Qt::MiddleButton || !QGuiApplication::clipboard()->supportsSelection()) {
        QLineEdit::mouseReleaseEvent(event);
        return;
    }
    deselect();
    take(copied(QClipboard::Selection));
}

void SearchBox::dropEvent(QDropEvent *event) {
    QMimeData cleaned;
    cleaned.setText(event->mimeData()->text().simplified());
    QDropEvent drop(event->position(), event->possibleActions(), &cleaned, event->buttons(), event->modifiers());
    drop.setDropAction(event->dropAction());
    QLineEdit::dropEvent(&drop);
    event->setDropAction(drop.dropAction());
    event->setAccepted(drop.isAccepted());
}

void SearchBox::contextMenuEvent(QContextMenuEvent *event) {
    QMenu *menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (QAction *paste = paste_item(*menu)) {
        paste->disconnect(this);
        connect(paste, &QAction::triggered, this, [this] { take(copied()); });
    }
    menu->popup(event->globalPos());
}
