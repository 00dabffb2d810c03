#include <gtest/gtest.h>

#include <QApplication>
#include <QLocale>
#include <QStandardPaths>

#include "ui/drawing/fonts.h"

using namespace Qt::StringLiterals;

// Style, type face and locale are those of the tests, whatever desktop they run on.
int main(int argc, char *argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Wine hands no variable of the toolkit on, and the offscreen platform needs a folder of type faces there.
    if (qEnvironmentVariableIsSet("ZIMBORA_TEST_FACES"))
        qputenv("QT_QPA_FONTDIR", qgetenv("ZIMBORA_TEST_FACES"));
    QStandardPaths::setTestModeEnabled(true);
    QApplication application(argc, argv);
    QApplication::setStyle(u"fusion"_s);
    QApplication::setQuitOnLastWindowClosed(false);
    QLocale::setDefault(QLocale(QLocale::Hungarian, QLocale::Hungary));
    fonts::substitute_missing_faces();
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
