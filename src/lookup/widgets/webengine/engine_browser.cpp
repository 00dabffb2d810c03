#include "lookup/widgets/webengine/engine_browser.h"

#include <QAction>
#include <QPointer>
#include <QTimer>
#include <QWebEngineDownloadRequest>
#include <QWebEngineLoadingInfo>

using namespace Qt::StringLiterals;

namespace {

QString reason_of(const QWebEngineLoadingInfo &info) {
    switch (info.errorDomain()) {
        case QWebEngineLoadingInfo::ConnectionErrorDomain:
            return u"nem lehet kapcsolódni. Van internetkapcsolat?"_s;
        case QWebEngineLoadingInfo::DnsErrorDomain:
            return u"ilyen nevű kiszolgáló nem található. Van internetkapcsolat?"_s;
        case QWebEngineLoadingInfo::CertificateErrorDomain:
            return u"a kiszolgáló nem tudja igazolni, hogy az, akinek mondja magát."_s;
        default:
            return u"hiba történt (%1)."_s.arg(info.errorCode());
    }
}

}  // namespace

EngineBrowser::EngineBrowser(const WebBrowserRules &rules)
    : rules_(rules),
      profile_(std::make_unique<QWebEngineProfile>()),
      page_(std::make_unique<EnginePage>(profile_.get(), rules)),
      view_(std::make_unique<QWebEngineView>(page_.get())) {
    profile_->setHttpAcceptLanguage(u"hu-HU,hu;q=0.9,en;q=0.5"_s);
    connect(profile_.get(), &QWebEngineProfile::downloadRequested, this, [this](QWebEngineDownloadRequest *download) {
        download->cancel();
        refuse(u"Innen nem tölthető le fájl: „%1”."_s.arg(download->suggestedFileName()));
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
        renew_focus();
        notifications_.navigation_finished();
        notifications_.download_finished();
    });
    // While a document is being loaded its address is not the browser's yet.
    connect(page_.get(), &QWebEnginePage::urlChanged, this, [this] {
        if (!busy())
            notifications_.navigation_finished();
    });
    connect(page_.get(), &QWebEnginePage::loadingChanged, this, &EngineBrowser::tell_failure);
    connect(page_.get(), &EnginePage::refused, this, [this](const QString &sentence) { refuse(sentence); });
    connect(page_.get(), &QWebEnginePage::renderProcessTerminated, this, [this](auto status) {
        if (status != QWebEnginePage::NormalTerminationStatus)
            refuse(u"A lap megjelenítése megszakadt. A Frissítés gomb újra megnyitja."_s);
    });
}

void EngineBrowser::renew_focus() {
    // A page in a new process does not know that it has the focus of the page before, and would not show which link has
    // it.
    QWidget *drawn = view_->focusProxy();
    if (!drawn || !drawn->hasFocus())
        return;
    drawn->clearFocus();
    drawn->setFocus();
}

void EngineBrowser::refuse(const QString &sentence) {
    // A page may try again and again while its reader is being told.
    if (telling_)
        return;
    telling_ = true;
    // The engine waits for an answer, and who is told may wait for the user, who may have closed the window.
    QTimer::singleShot(0, this, [self = QPointer<EngineBrowser>(this), tell = notifications_.refused, sentence] {
        tell(sentence);
        if (self)
            self->telling_ = false;
    });
}

void EngineBrowser::tell_failure(const QWebEngineLoadingInfo &info) {
    // With a status of its own the server has sent a page of its own.
    if (info.status() == QWebEngineLoadingInfo::LoadFailedStatus &&
        info.errorDomain() != QWebEngineLoadingInfo::HttpStatusCodeDomain)
        refuse(u"A(z) „%1” lap nem tölthető be: %2"_s.arg(info.url().toDisplayString(), reason_of(info)));
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
