#pragma once

#include <functional>
#include <memory>
#include <utility>

/// The one instance of a window: made at its first use, gone when unloaded, made afresh at the next use.
template <class Window>
class WindowReference final {
  public:
    /// `make` returns a new window.
    explicit WindowReference(std::function<std::unique_ptr<Window>()> make) : make_(std::move(make)) {}

    /// The window, made now if it is not loaded.
    [[nodiscard]] Window &get() {
        if (!window_)
            window_ = make_();
        return *window_;
    }
    [[nodiscard]] bool loaded() const { return window_ != nullptr; }
    void unload() { window_.reset(); }

  private:
    std::function<std::unique_ptr<Window>()> make_;
    std::unique_ptr<Window> window_;
};
