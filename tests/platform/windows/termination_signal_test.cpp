#include "platform/termination_signal.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <QCoreApplication>
#include <QTimer>

namespace {

/// What the system runs on a thread of its own when a console is left or its user presses Ctrl+Break. Most programs
/// with windows have no console.
LPTHREAD_START_ROUTINE routine_of_the_system() {
    const FARPROC address = GetProcAddress(GetModuleHandleW(L"kernelbase.dll"), "CtrlRoutine");
    return reinterpret_cast<LPTHREAD_START_ROUTINE>(reinterpret_cast<void *>(address));
}

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

    ASSERT_NE(routine_of_the_system(), nullptr);
    const HANDLE thread = CreateThread(nullptr, 0, routine_of_the_system(),
                                       reinterpret_cast<void *>(static_cast<ULONG_PTR>(CTRL_BREAK_EVENT)), 0, nullptr);
    ASSERT_NE(thread, nullptr);
    EXPECT_EQ(WaitForSingleObject(thread, 10000), WAIT_OBJECT_0);
    CloseHandle(thread);
    EXPECT_FALSE(asked);
    application.exec();

    EXPECT_TRUE(asked);
}

}  // namespace
