#include "lookup/widgets/browser_plugin.h"

#include <QCoreApplication>
#include <QDir>
#include <QLoggingCategory>
#include <QOpenGLContext>
#include <QPluginLoader>

#include "lookup/widgets/system_browser.h"
#include "platform/browser_sandbox.h"

using namespace Qt::StringLiterals;

QT_BEGIN_NAMESPACE
// Of the toolkit, which declares them in none of its headers.
Q_GUI_EXPORT QOpenGLContext *qt_gl_global_share_context();
Q_GUI_EXPORT void qt_gl_set_global_share_context(QOpenGLContext *context);
QT_END_NAMESPACE

namespace {

const QString plugin_file = u"zimbora_webengine.so"_s;

/// The engine asks for the OpenGL context that all windows share while it loads, and goes on to read the format of it.
/// A program that has none pays 30 ms at its start to make one; one that was never created is enough for an engine that
/// draws without OpenGL, as the plug-in's does.
void give_engine_a_context() {
    // The engine's own end, after the application's, reads it once more.
    if (!qt_gl_global_share_context())
        qt_gl_set_global_share_context(new QOpenGLContext);
}

Failure not_loaded(const QString &reason) {
    return {
        u"A súgó böngészője nem tölthető be, mert a bővítménye vagy a Qt WebEngine hiányzik vagy "
        "hibás: %1"_s.arg(reason)};
}

}  // namespace

QStringList browser_plugin_folders(const QString &executable_folder) {
    const QDir folder(executable_folder);
    return {folder.filePath(u"plugins"_s), QDir::cleanPath(folder.filePath(u"" ZIMBORA_PLUGINS_FROM_BIN ""_s))};
}

WebBrowserResult make_browser_of_plugin(const QStringList &folders, const WebBrowserRules &rules) {
    QString path;
    for (const QString &folder : folders) {
        if (path.isEmpty() && files::exists(QDir(folder).filePath(plugin_file)))
            path = QDir(folder).filePath(plugin_file);
    }
    if (path.isEmpty())
        return not_loaded(u"a(z) „%1” fájl nem található."_s.arg(plugin_file));
    if (auto locked_out = prepare_browser_sandbox())
        return *std::move(locked_out);
    give_engine_a_context();
    // It would write its settings to the terminal.
    QLoggingCategory::setFilterRules(u"qt.webenginecontext.debug=false\nqt.webenginecontext.info=false"_s);
    QPluginLoader loader(path);
    auto *plugin = qobject_cast<WebBrowserPlugin *>(loader.instance());
    if (!plugin)
        return not_loaded(loader.errorString());
    return plugin->make(rules);
}

WebBrowserResult make_system_browser(const WebBrowserRules &rules) {
    return make_browser_of_plugin(browser_plugin_folders(QCoreApplication::applicationDirPath()), rules);
}
