#include "platform/top_most.h"

#include <windows.h>

namespace {

HWND handle_of(quintptr window) {
    return reinterpret_cast<HWND>(window);
}

bool covers_its_screen(HWND window) {
    RECT place{};
    MONITORINFO screen{};
    screen.cbSize = sizeof screen;
    if (GetWindowRect(window, &place) == 0 ||
        GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTOPRIMARY), &screen) == 0)
        return false;
    return place.left <= screen.rcMonitor.left && place.top <= screen.rcMonitor.top &&
           place.right >= screen.rcMonitor.right && place.bottom >= screen.rcMonitor.bottom;
}

/// Of the windows that want to be on top, the one that came last is. A presentation or a film that fills the screen is
/// one of them, too.
class SystemTopMost final : public TopMost {
  public:
    void make(quintptr window) override { SetWindowPos(handle_of(window), HWND_TOPMOST, 0, 0, 0, 0, SWP_NOSIZE); }

    void renew(quintptr window) override {
        HWND active = GetForegroundWindow();
        if (active == nullptr || active == handle_of(window) || active == GetShellWindow() ||
            !covers_its_screen(active))
            return;
        SetWindowPos(handle_of(window), HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    }
};

}  // namespace

std::unique_ptr<TopMost> make_top_most() {
    return std::make_unique<SystemTopMost>();
}
