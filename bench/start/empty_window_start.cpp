#include <QWidget>

#include "start/first_paint.h"

// The least that a program with a window can be: what the toolkit itself takes.
int main(int argc, char *argv[]) {
    FirstPaint application(argc, argv);
    QWidget window;
    window.show();
    return QApplication::exec();
}
