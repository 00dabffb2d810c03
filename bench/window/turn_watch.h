#pragma once

#include <QElapsedTimer>
#include <QTimer>

/// Watches how long the event loop leaves a window without an answer. A timer asks for a turn every millisecond; the
/// time between two of its turns is how long a key or a click that comes in between may have to wait.
class TurnWatch final {
  public:
    TurnWatch();

    /// Forgets what was so far.
    void restart();

    /// Lets the event loop run for so many turns.
    void run_turns(int turns);

    /// The longest time between two turns since restart(), in nanoseconds.
    [[nodiscard]] qint64 longest() const { return longest_; }

  private:
    void take_turn();

    QTimer timer_;
    QElapsedTimer since_turn_;
    qint64 longest_ = 0;
    int turns_ = 0;
};
