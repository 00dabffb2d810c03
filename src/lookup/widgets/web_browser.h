#pragma once

#include <QString>
#include <QUrl>
#include <QtPlugin>
#include <functional>
#include <memory>
#include <optional>
#include <variant>

#include "platform/files.h"

class QWidget;

/// The embedded browser as the help viewer sees it. An operation that cannot be carried out, such as going back without
/// a history, does nothing.
class WebBrowser {
  public:
    /// What the browser tells while it exists.
    struct Notifications {
        /// A document is there, or will not come.
        std::function<void()> download_finished;
        /// The browser stands at another address.
        std::function<void()> navigation_finished;
        /// Something was not opened; the sentence in Hungarian says what and why. From the event loop, so that a
        /// message may be shown; nothing more is refused aloud meanwhile.
        std::function<void(const QString &sentence)> refused;
    };

    virtual ~WebBrowser() = default;

    virtual void notify(const Notifications &notifications) = 0;
    /// The control itself; it goes with the browser.
    [[nodiscard]] virtual QWidget *widget() = 0;
    /// Shows pages enlarged.
    virtual void set_zoom(double factor) = 0;

    virtual void navigate(const QUrl &address) = 0;
    virtual void go_back() = 0;
    virtual void go_forward() = 0;
    virtual void refresh() = 0;
    virtual void go_home() = 0;
    virtual void go_search() = 0;
    virtual void stop() = 0;
    [[nodiscard]] virtual bool busy() const = 0;
    /// Title of the document that is shown.
    [[nodiscard]] virtual QString location_name() const = 0;
    [[nodiscard]] virtual QString location_address() const = 0;
};

/// What a browser is made with.
struct WebBrowserRules {
    QUrl home;
    QUrl search;
    /// Why an address is not opened; nothing for one that is. Asked before each step that a page or a link makes.
    std::function<std::optional<Failure>(const QUrl &address)> obstacle;
};

/// A browser, or why there is none.
using WebBrowserResult = std::variant<std::unique_ptr<WebBrowser>, Failure>;
using WebBrowserFactory = std::function<WebBrowserResult(const WebBrowserRules &)>;

/// What the plug-in with the browser engine offers.
class WebBrowserPlugin {
  public:
    virtual ~WebBrowserPlugin() = default;

    [[nodiscard]] virtual std::unique_ptr<WebBrowser> make(const WebBrowserRules &rules) = 0;
};

#define ZIMBORA_WEB_BROWSER_PLUGIN "zimbora.WebBrowserPlugin/1"
Q_DECLARE_INTERFACE(WebBrowserPlugin, ZIMBORA_WEB_BROWSER_PLUGIN)
