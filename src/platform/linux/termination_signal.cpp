#include "platform/termination_signal.h"

#include <fcntl.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <array>
#include <cerrno>
#include <csignal>
#include <utility>

namespace {

constexpr std::array watched_signals{SIGTERM, SIGINT, SIGHUP};

// A signal handler may only touch what is async-signal-safe: it writes one byte into a pipe that the event loop
// watches.
volatile std::sig_atomic_t pipe_entry = -1;

void write_into_pipe(int) {
    const int interrupted = errno;
    const char one = 1;
    [[maybe_unused]] const auto written = ::write(pipe_entry, &one, 1);
    errno = interrupted;
}

}  // namespace

struct TerminationSignal::Watch {
    explicit Watch(std::function<void()> what) : asked(std::move(what)) {
        if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0)
            return;
        notifier = std::make_unique<QSocketNotifier>(ends[0], QSocketNotifier::Read);
        QObject::connect(notifier.get(), &QSocketNotifier::activated, notifier.get(), [this] {
            char requests[16];
            if (::read(ends[0], requests, sizeof requests) > 0)
                asked();
        });
        pipe_entry = ends[1];
        for (const int signal : watched_signals)
            std::signal(signal, write_into_pipe);
    }

    ~Watch() {
        for (const int signal : watched_signals)
            std::signal(signal, SIG_DFL);
        pipe_entry = -1;
        notifier.reset();
        for (const int end : ends) {
            if (end >= 0)
                ::close(end);
        }
    }

    Watch(const Watch &) = delete;
    Watch &operator=(const Watch &) = delete;

    std::function<void()> asked;
    std::array<int, 2> ends{-1, -1};
    std::unique_ptr<QSocketNotifier> notifier;
};

TerminationSignal::TerminationSignal(std::function<void()> asked) : watch_(std::make_unique<Watch>(std::move(asked))) {}

TerminationSignal::~TerminationSignal() = default;
