#pragma once

#include <QString>
#include <QtGlobal>
#include <functional>
#include <memory>

/// The web browser control that Windows has for other programs (IWebBrowser2), hosted in a window of the program, which
/// it fills. Other systems have none; there the browser engine is a plug-in.
///
/// An operation that cannot be carried out does nothing. Made and used on the thread of the event loop.
class WebControl {
  public:
    /// What the control tells and asks while it exists. It waits for the answer, and must not be destroyed meanwhile.
    struct Events {
        /// Whether an address may be opened, in the whole window or in a frame of a page.
        std::function<bool(const QString &address, bool whole_window)> may_open;
        std::function<void()> download_finished;
        std::function<void()> navigation_finished;
        /// A page wants another window for an address; the control has not opened one.
        std::function<void(const QString &address)> new_window;
        /// A page offered a file to be saved; it was not.
        std::function<void()> file_refused;
        /// A page did not come. `code` is the system's (INET_E_... of urlmon.h).
        std::function<void(const QString &address, int code)> failed;
    };

    virtual ~WebControl() = default;

    /// Gives the control its part of the window, in pixels of the screen.
    virtual void resize(int width, int height) = 0;
    virtual void take_focus() = 0;
    /// Lets the control have a key first that is pressed within it. `message` is the system's MSG; true when it has
    /// been used.
    virtual bool take_key(void *message) = 0;
    virtual void set_zoom(int percent) = 0;

    virtual void navigate(const QString &address) = 0;
    virtual void go_back() = 0;
    virtual void go_forward() = 0;
    virtual void refresh() = 0;
    virtual void go_home() = 0;
    virtual void go_search() = 0;
    virtual void stop() = 0;
    [[nodiscard]] virtual bool busy() const = 0;
    [[nodiscard]] virtual QString location_name() const = 0;
    [[nodiscard]] virtual QString location_address() const = 0;
};

/// Hosts a control in `window`, named as the system names it (QWidget::winId). Null when the system has no such control
/// or it cannot be shown.
[[nodiscard]] std::unique_ptr<WebControl> make_web_control(quintptr window, const WebControl::Events &events);
