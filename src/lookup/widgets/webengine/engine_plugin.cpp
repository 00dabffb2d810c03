#include "lookup/widgets/webengine/engine_plugin.h"

#include <QQuickWindow>

#include "lookup/widgets/webengine/engine_browser.h"

EnginePlugin::EnginePlugin() {
    // Help pages need no graphics processor, and what draws without one works on every machine.
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
}

std::unique_ptr<WebBrowser> EnginePlugin::make(const WebBrowserRules &rules) {
    return std::make_unique<EngineBrowser>(rules);
}
