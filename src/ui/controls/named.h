#pragma once

#include <QAction>
#include <QString>
#include <QWidget>

/// Gives a control its system name and the name that assistive programs read out; null for a label, whose text is read.
template <class Control>
Control *named(Control *control, const char16_t *name, const char16_t *accessible_name) {
    control->setObjectName(QString::fromUtf16(name));
    if (accessible_name)
        control->setAccessibleName(QString::fromUtf16(accessible_name));
    return control;
}

/// Gives a menu or menu item its system name.
template <class Item>
Item *named(Item *item, const char16_t *name) {
    item->setObjectName(QString::fromUtf16(name));
    return item;
}
