#include "platform/termination_signal.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <QCoreApplication>
#include <QTimer>

namespace {

TEST(TerminationSignal, calls_back_from_the_event_loop) {
    int argc = 1;
    char name[] = "test";
    char *argv[] = {name, nullptr};
    QCoreApplication application(argc, argv);
    bool asked = false;
    const TerminationSignal signal([&] {
        asked = true;
        application.quit();
    });
    QTimer::singleShot(10000, &application, &QCoreApplication::quit);

    // A program that was started without a console has none.
    AllocConsole();
    ASSERT_NE(GenerateConsoleCtrlEvent(CTRL_BREAK_EVENT, 0), 0);
    EXPECT_FALSE(asked);
    application.exec();

    EXPECT_TRUE(asked);
}

}  // namespace
