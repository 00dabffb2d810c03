#include "ui/up_down.h"

#include <QLineEdit>
#include <QStyleOptionFocusRect>
#include <QStyleOptionSpinBox>
#include <QStylePainter>

UpDown::UpDown() {
    // The keys go to the control itself, not to a field into which nothing can be written.
    lineEdit()->setReadOnly(true);
    lineEdit()->hide();
}

void UpDown::paintEvent(QPaintEvent *) {
    QStylePainter painter(this);
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    option.subControls = QStyle::SC_SpinBoxUp | QStyle::SC_SpinBoxDown;
    painter.drawComplexControl(QStyle::CC_SpinBox, option);
    if (!hasFocus())
        return;
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    focus.rect = rect();
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
}
