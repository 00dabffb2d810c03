#pragma once

#include <QObject>

#include "lookup/widgets/web_browser.h"

/// What the program finds in the plug-in: a maker of browsers with Qt WebEngine. Nothing else of the program links it.
class EnginePlugin final : public QObject, public WebBrowserPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID ZIMBORA_WEB_BROWSER_PLUGIN)
    Q_INTERFACES(WebBrowserPlugin)

  public:
    EnginePlugin();

    [[nodiscard]] std::unique_ptr<WebBrowser> make(const WebBrowserRules &rules) override;
};
