#include "platform/termination_signal.h"

#include <windows.h>

#include <QObject>
#include <mutex>
#include <utility>

namespace {

/// The one object that is told; the system calls the handler on a thread of its own.
struct Receiver {
    std::mutex mutex;
    QObject *context = nullptr;
    std::function<void()> asked;
};

Receiver &receiver() {
    static Receiver one;
    return one;
}

/// When the console goes, or the user leaves, the process ends as soon as the handler returns, and after this time in
/// any case.
constexpr DWORD time_to_end_by_itself = 5000;  // milliseconds

BOOL WINAPI on_control(DWORD kind) {
    {
        const std::lock_guard lock(receiver().mutex);
        if (receiver().context == nullptr)
            return FALSE;
        QMetaObject::invokeMethod(receiver().context, receiver().asked, Qt::QueuedConnection);
    }
    if (kind != CTRL_C_EVENT && kind != CTRL_BREAK_EVENT)
        Sleep(time_to_end_by_itself);
    return TRUE;
}

}  // namespace

struct TerminationSignal::Watch {
    explicit Watch(std::function<void()> what) {
        const std::lock_guard lock(receiver().mutex);
        receiver().asked = std::move(what);
        receiver().context = &context;
        SetConsoleCtrlHandler(on_control, TRUE);
    }

    ~Watch() {
        SetConsoleCtrlHandler(on_control, FALSE);
        const std::lock_guard lock(receiver().mutex);
        receiver().context = nullptr;
        receiver().asked = nullptr;
    }

    Watch(const Watch &) = delete;
    Watch &operator=(const Watch &) = delete;

    /// Its thread is the one of the event loop; what is queued for it goes with it.
    QObject context;
};

TerminationSignal::TerminationSignal(std::function<void()> asked) : watch_(std::make_unique<Watch>(std::move(asked))) {}

TerminationSignal::~TerminationSignal() = default;
