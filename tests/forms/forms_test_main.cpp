#include <gmock/gmock.h>

#include <QCoreApplication>

// A plug-in is looked for beside the executable, which only an application object knows.
int main(int argc, char *argv[]) {
    const QCoreApplication application(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
