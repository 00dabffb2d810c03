#pragma once

#include <QWebEngineNewWindowRequest>
#include <QWebEnginePage>

#include "lookup/widgets/web_browser.h"

/// A page that opens only what the rules allow, everything in the same view, and asks the user nothing.
///
/// Within the help document, an archive, links are addresses of the scheme "thismessage", which only the archive knows:
/// one to the document itself leads to a place in it, any other to the file of that name beside the archive.
class EnginePage final : public QWebEnginePage {
    Q_OBJECT

  public:
    EnginePage(QWebEngineProfile *profile, WebBrowserRules rules);

    /// Opens an address, or tells why it is not opened.
    void open(const QUrl &address);

  Q_SIGNALS:
    /// The engine may be waiting while this is emitted.
    void refused(const QString &sentence);

  protected:
    bool acceptNavigationRequest(const QUrl &url, NavigationType type, bool is_main_frame) override;
    QStringList chooseFiles(FileSelectionMode mode, const QStringList &old_files,
                            const QStringList &accepted_types) override;
    void javaScriptAlert(const QUrl &origin, const QString &message) override;
    bool javaScriptConfirm(const QUrl &origin, const QString &message) override;
    bool javaScriptPrompt(const QUrl &origin, const QString &message, const QString &proposal,
                          QString *result) override;
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString &message, int line,
                                  const QString &source) override;

  private:
    [[nodiscard]] QUrl outside_archive(const QUrl &address) const;

    const WebBrowserRules rules_;
};
