#include "ui/controls/lookup_keys.h"

#include <QKeyEvent>

namespace {

/// The list, if it can be entered; something is selected in it then.
QWidget *entered(ListBox &list) {
    if (list.count() == 0)
        return nullptr;
    if (list.selected() < 0)
        list.select(0);
    return &list;
}

}  // namespace

LookupKeys::LookupKeys(QLineEdit &search, ListBox &hits, ListBox &meanings)
    : QObject(search.window()), search_(search), hits_(hits), meanings_(meanings) {
    search.installEventFilter(this);
    hits.installEventFilter(this);
    meanings.installEventFilter(this);
}

bool LookupKeys::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto &key = *static_cast<QKeyEvent *>(event);
    // The number pad has arrows, too.
    if ((key.modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier)) != Qt::NoModifier)
        return false;
    QWidget *where = leads_to(watched, key.key());
    if (!where)
        return false;
    where->setFocus(Qt::ShortcutFocusReason);
    return true;
}

QWidget *LookupKeys::leads_to(const QObject *from, int key) const {
    if (from == &search_)
        return key == Qt::Key_Down ? entered(hits_) : nullptr;
    if (from == &meanings_)
        return key == Qt::Key_Left ? entered(hits_) : nullptr;
    if (key == Qt::Key_Right)
        return entered(meanings_);
    return key == Qt::Key_Up && hits_.selected() <= 0 ? &search_ : nullptr;
}
