#pragma once

#include <QStringList>

#include "lookup/widgets/web_browser.h"

/// The folders in which the plug-in with the browser engine may lie, seen from the folder of the executable: that of a
/// build, that of an installation.
[[nodiscard]] QStringList browser_plugin_folders(const QString &executable_folder);

/// Makes a browser with the engine of the first plug-in found in `folders`. The engine is loaded at the first call and
/// not before, because it takes longer to load than the rest of the program; it stays loaded.
[[nodiscard]] WebBrowserResult make_browser_of_plugin(const QStringList &folders, const WebBrowserRules &rules);
