#pragma once

#include <QObject>
#include <QWebEngineProfile>
#include <QWebEngineView>

#include "lookup/widgets/webengine/engine_page.h"

class QWebEngineLoadingInfo;

/// The help viewer's browser with Qt WebEngine. It keeps nothing of what it has seen: no history, no cookies, no cache
/// on the disk. It downloads nothing.
class EngineBrowser final : public QObject, public WebBrowser {
    Q_OBJECT

  public:
    explicit EngineBrowser(const WebBrowserRules &rules);
    ~EngineBrowser() override;

    EngineBrowser(const EngineBrowser &) = delete;
    EngineBrowser &operator=(const EngineBrowser &) = delete;

    void notify(const Notifications &notifications) override { notifications_ = notifications; }
    [[nodiscard]] QWidget *widget() override { return view_.get(); }
    void set_zoom(double factor) override { page_->setZoomFactor(factor); }

    void navigate(const QUrl &address) override { page_->open(address); }
    void go_back() override { page_->triggerAction(QWebEnginePage::Back); }
    void go_forward() override { page_->triggerAction(QWebEnginePage::Forward); }
    void refresh() override { page_->triggerAction(QWebEnginePage::Reload); }
    void go_home() override { page_->open(rules_.home); }
    void go_search() override { page_->open(rules_.search); }
    void stop() override { page_->triggerAction(QWebEnginePage::Stop); }
    [[nodiscard]] bool busy() const override { return page_->isLoading(); }
    [[nodiscard]] QString location_name() const override { return page_->title(); }
    [[nodiscard]] QString location_address() const override { return page_->url().toString(QUrl::PrettyDecoded); }

  private:
    void watch_page();
    void fill_context_menu();
    void renew_focus();
    void refuse(const QString &sentence);
    void tell_failure(const QWebEngineLoadingInfo &info);

    const WebBrowserRules rules_;
    Notifications notifications_{[] {}, [] {}, [](const QString &) {}};
    bool telling_ = false;
    // In this order: a page must go before its profile.
    std::unique_ptr<QWebEngineProfile> profile_;
    std::unique_ptr<EnginePage> page_;
    std::unique_ptr<QWebEngineView> view_;
};
