#include "lookup/webengine/engine_browser.h"

#include <QAction>
#include <QWebEngineDownloadRequest>
#include <QWebEngineLoadingInfo>

namespace {

QString reason_of(const QWebEngineLoadingInfo &info) {
    switch (info.errorDomain()) {
        case QWebEngineLoadingInfo::ConnectionErrorDomain:
            return QStringLiteral("nem lehet kapcsolódni. Van internetkapcsolat?");
        case QWebEngineLoadingInfo::DnsErrorDomain:
            return QStringLiteral("ilyen nevű kiszolgáló nem található. Van internetkapcsolat?");
        case QWebEngineLoadingInfo::CertificateErrorDomain:
            return QStringLiteral("a kiszolgáló nem tudja igazolni, hogy az, akinek mondja magát.");
        default:
            return QStringLiteral("hiba történt (%1).").arg(info.errorCode());
    }
}

}  // namespace

EngineBrowser::EngineBrowser(const WebBrowserRules &rules)
    : rules_(rules),
      profile_(std::make_unique<QWebEngineProfile>()),
      page_(std::make_unique<EnginePage>(profile_.get(), rules)),
      view_(std::make_unique<QWebEngineView>(page_.get())) {
    profile_->setHttpAcceptLanguage(QStringLiteral("hu-HU,hu;q=0.9,en;q=0.5"));
    connect(profile_.get(), &QWebEngineProfile::downloadRequested, this, [this](QWebEngineDownloadRequest *download) {
        download->cancel();
        notifications_.refused(QStringLiteral("Innen nem tölthető le fájl: „%1”.").arg(download->suggestedFileName()));
    });
    watch_page();
    fill_context_menu();
}

EngineBrowser::~EngineBrowser() {
    // Nothing is told any more.
    page_->disconnect(this);
    // The view would leave its page without a view for a moment, in which the page might still ask for one.
    view_.reset();
}

void EngineBrowser::watch_page() {
    connect(page_.get(), &QWebEnginePage::loadFinished, this, [this] {
        notifications_.navigation_finished();
        notifications_.download_finished();
    });
    // While a document is being loaded its address is not the browser's yet.
    connect(page_.get(), &QWebEnginePage::urlChanged, this, [this] {
        if (!busy())
            notifications_.navigation_finished();
    });
    connect(page_.get(), &QWebEnginePage::loadingChanged, this, &EngineBrowser::tell_failure);
    connect(page_.get(), &EnginePage::refused, this,
            [this](const QString &sentence) { notifications_.refused(sentence); });
    connect(page_.get(), &QWebEnginePage::renderProcessTerminated, this, [this](auto status) {
        if (status != QWebEnginePage::NormalTerminationStatus)
            notifications_.refused(QStringLiteral("A lap megjelenítése megszakadt. A Frissítés gomb újra megnyitja."));
    });
}

void EngineBrowser::tell_failure(const QWebEngineLoadingInfo &info) {
    // With a status of its own the server has sent a page of its own.
    if (info.status() == QWebEngineLoadingInfo::LoadFailedStatus &&
        info.errorDomain() != QWebEngineLoadingInfo::HttpStatusCodeDomain)
        notifications_.refused(
            QStringLiteral("A(z) „%1” lap nem tölthető be: %2").arg(info.url().toDisplayString(), reason_of(info)));
}

void EngineBrowser::fill_context_menu() {
    struct Item {
        QWebEnginePage::WebAction action;
        const char16_t *text;
    };
    for (const auto &[action, text] :
         {Item{QWebEnginePage::Back, u"Vissza"}, Item{QWebEnginePage::Forward, u"Előre"},
          Item{QWebEnginePage::Reload, u"Frissítés"}, Item{QWebEnginePage::Copy, u"Másolás"},
          Item{QWebEnginePage::SelectAll, u"Mindent kijelöl"}}) {
        QAction *item = page_->action(action);
        item->setText(QString::fromUtf16(text));
        view_->addAction(item);
    }
    view_->setContextMenuPolicy(Qt::ActionsContextMenu);
}
