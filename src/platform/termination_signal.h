#pragma once

#include <functional>
#include <memory>

/// Turns the system's request to end the program (SIGTERM, SIGINT and SIGHUP on Linux) into a call on the event loop.
/// One source a system.
class TerminationSignal final {
  public:
    /// `asked` is called from the event loop, once for each request, while this object lives. One object a process.
    explicit TerminationSignal(std::function<void()> asked);
    ~TerminationSignal();

    TerminationSignal(const TerminationSignal &) = delete;
    TerminationSignal &operator=(const TerminationSignal &) = delete;

  private:
    struct Watch;
    std::unique_ptr<Watch> watch_;
};
