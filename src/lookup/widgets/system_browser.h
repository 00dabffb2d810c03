#pragma once

#include "lookup/widgets/web_browser.h"

/// Makes a browser with what this system has for it: the engine of a plug-in, or the control that Windows has for other
/// programs. One source a system.
[[nodiscard]] WebBrowserResult make_system_browser(const WebBrowserRules &rules);
