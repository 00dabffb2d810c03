#include "ui/controls/up_down.h"

#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionSpinBox>

UpDown::UpDown() {
    // The keys go to the control itself, not to a field into which nothing can be written.
    lineEdit()->setReadOnly(true);
    lineEdit()->hide();
}

void UpDown::resizeEvent(QResizeEvent *event) {
    QSpinBox::resizeEvent(event);
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    const QRect arrows = style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp, this) |
                         style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxDown, this);
    // Up to the frame on the outer side.
    setMask(QRect(arrows.left(), 0, width() - arrows.left(), height()));
}
