#include <QTimer>

#include "app/program.h"
#include "start/first_paint.h"

using namespace Qt::StringLiterals;

// The program, put together as its own main() does it. The environment says where its folders are.
int main(int argc, char *argv[]) {
    FirstPaint application(argc, argv);
    QApplication::setApplicationName(u"Zimbora"_s);
    QApplication::setDesktopFileName(u"zimbora"_s);
    set_up_toolkit();
    Program program({qEnvironmentVariable("ZIMBORA_PROGRAM"), {}, {}, {}, {}, {}});
    QTimer::singleShot(0, &application, [&] { program.start({}); });
    return QApplication::exec();
}
