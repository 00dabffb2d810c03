#include <QApplication>
#include <QWidget>

using namespace Qt::StringLiterals;

// The least that a program with a window can be on Windows: what the toolkit itself takes.
int main(int argc, char *argv[]) {
    QApplication application(argc, argv);
    QWidget window;
    window.setWindowTitle(u"Empty window"_s);
    window.show();
    return QApplication::exec();
}
