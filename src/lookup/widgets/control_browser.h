#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <QWidget>
#include <memory>

#include "lookup/widgets/web_browser.h"
#include "platform/web_control.h"

/// The surface of the browser control, as large as it.
class ControlSurface final : public QWidget {
  public:
    ControlSurface();

    /// `control` is looked at until the surface is told of null.
    void hold(WebControl *control);

  protected:
    void resizeEvent(QResizeEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

  private:
    WebControl *control_ = nullptr;
};

/// The help viewer's browser with the control that Windows has for other programs.
class ControlBrowser final : public QObject, public WebBrowser, public QAbstractNativeEventFilter {
    Q_OBJECT

  public:
    explicit ControlBrowser(const WebBrowserRules &rules);
    ~ControlBrowser() override;

    ControlBrowser(const ControlBrowser &) = delete;
    ControlBrowser &operator=(const ControlBrowser &) = delete;

    /// False when the system has no control.
    [[nodiscard]] bool works() const { return control_ != nullptr; }

    void notify(const Notifications &notifications) override { notifications_ = notifications; }
    [[nodiscard]] QWidget *widget() override { return surface_.get(); }
    void set_zoom(double factor) override;

    void navigate(const QUrl &address) override;
    void go_back() override { control_->go_back(); }
    void go_forward() override { control_->go_forward(); }
    void refresh() override { control_->refresh(); }
    void go_home() override { control_->go_home(); }
    void go_search() override { control_->go_search(); }
    void stop() override { control_->stop(); }
    [[nodiscard]] bool busy() const override { return control_->busy(); }
    [[nodiscard]] QString location_name() const override { return control_->location_name(); }
    [[nodiscard]] QString location_address() const override;

    /// The toolkit does not hand on keys that are pressed within a window that is not its own.
    bool nativeEventFilter(const QByteArray &kind, void *message, qintptr *result) override;

  private:
    [[nodiscard]] WebControl::Events events();
    [[nodiscard]] bool may_open(const QString &address, bool whole_window);
    void refuse(const QString &sentence);

    const WebBrowserRules rules_;
    Notifications notifications_{[] {}, [] {}, [](const QString &) {}};
    bool telling_ = false;
    int zoom_ = 100;
    std::unique_ptr<ControlSurface> surface_;
    std::unique_ptr<WebControl> control_;
};
