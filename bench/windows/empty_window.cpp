#include <QApplication>
#include <QWidget>

// The least that a program with a window can be on Windows: what the toolkit itself takes.
int main(int argc, char *argv[]) {
    QApplication application(argc, argv);
    QWidget window;
    window.setWindowTitle(QStringLiteral("Empty window"));
    window.show();
    return QApplication::exec();
}
