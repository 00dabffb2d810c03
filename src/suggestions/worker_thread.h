#pragma once

#include <QObject>
#include <QThread>
#include <atomic>
#include <functional>
#include <memory>

/// Does work for a window on a thread of its own, the newest only: work that has not begun is dropped when newer work
/// comes, and work that runs is told that it is out of date. The thread is started by the first work and ended, after
/// the work that runs, with this object.
///
/// All functions are the window's: they are called on the thread that made the object, and none of them waits but the
/// destructor.
class munkaszál final {
  public:
    /// True when newer work has come or the thread is to end; may be called at any time while the work runs.
    using elavult = std::function<bool()>;
    /// Runs on the thread of the work.
    using munka = std::function<void(const elavult &elavult)>;

    munkaszál() = default;
    munkaszál(const munkaszál &) = delete;
    munkaszál &operator=(const munkaszál &) = delete;
    ~munkaszál();

    /// Has this done instead of everything before it.
    void végez(munka teendő);
    /// Drops what runs or waits.
    void elvet() { ++*newest_; }
    /// For a work: has `közlés` called on the window's thread, unless the work is out of date by then or this object
    /// is gone.
    using közlés = std::function<void()>;
    void közöl(const elavult &régi, közlés mondanivaló);

  private:
    std::shared_ptr<std::atomic<int>> newest_ = std::make_shared<std::atomic<int>>(0);
    /// Lives on the window's thread: what is told to the window is delivered to it.
    QObject here_;
    /// Lives on the thread of the work.
    QObject *there_ = nullptr;
    QThread thread_;
};
