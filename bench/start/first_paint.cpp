#include "start/first_paint.h"

#include <QEvent>
#include <QWidget>
#include <cstdio>

bool FirstPaint::notify(QObject *receiver, QEvent *event) {
    ++depth_;
    if (event->type() == QEvent::Paint && receiver->isWidgetType() && qobject_cast<QWidget *>(receiver)->isWindow())
        painted_ = true;
    const bool taken = QApplication::notify(receiver, event);
    if (--depth_ == 0 && painted_ && !told_)
        tell();
    return taken;
}

void FirstPaint::tell() {
    told_ = true;
    std::puts("painted");
    std::fflush(stdout);
    while (std::getchar() != EOF) {
    }
    quit();
}
