#include "platform/termination_signal.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTimer>
#include <csignal>

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

    std::raise(SIGTERM);
    EXPECT_FALSE(asked);
    application.exec();

    EXPECT_TRUE(asked);
}

}  // namespace
