#pragma once

#include <QString>

#include "lookup/widgets/web_browser.h"

class QLabel;

/// Stands in for a browser that could not be made: shows why, and does nothing.
class MissingBrowser final : public WebBrowser {
  public:
    explicit MissingBrowser(const QString &reason);
    ~MissingBrowser() override;

    MissingBrowser(const MissingBrowser &) = delete;
    MissingBrowser &operator=(const MissingBrowser &) = delete;

    void notify(const Notifications &) override {}
    [[nodiscard]] QWidget *widget() override;
    void set_zoom(double) override {}
    void navigate(const QUrl &) override {}
    void go_back() override {}
    void go_forward() override {}
    void refresh() override {}
    void go_home() override {}
    void go_search() override {}
    void stop() override {}
    [[nodiscard]] bool busy() const override { return false; }
    [[nodiscard]] QString location_name() const override;
    [[nodiscard]] QString location_address() const override { return {}; }

  private:
    std::unique_ptr<QLabel> reason_;
};
