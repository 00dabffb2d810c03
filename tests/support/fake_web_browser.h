#pragma once

#include <QLineEdit>
#include <QStringList>
#include <QWidget>
#include <memory>

#include "lookup/widgets/web_browser.h"

using namespace Qt::StringLiterals;

/// A browser that notes what it is told to do, and stands where a test says.
class FakeWebBrowser final : public WebBrowser {
  public:
    QStringList done;
    Notifications notifications;
    bool is_busy = false;
    QString name = u"Zimbora súgó"_s;
    QString address;
    double zoom = 0;

    void notify(const Notifications &to) override { notifications = to; }
    [[nodiscard]] QWidget *widget() override { return widget_.get(); }
    void set_zoom(double factor) override { zoom = factor; }

    void navigate(const QUrl &to) override { done.append(to.toString()); }
    void go_back() override { done.append(u"back"_s); }
    void go_forward() override { done.append(u"forward"_s); }
    void refresh() override { done.append(u"refresh"_s); }
    void go_home() override { done.append(u"home"_s); }
    void go_search() override { done.append(u"search"_s); }
    void stop() override { done.append(u"stop"_s); }
    [[nodiscard]] bool busy() const override { return is_busy; }
    [[nodiscard]] QString location_name() const override { return name; }
    [[nodiscard]] QString location_address() const override { return address; }

  private:
    /// Like a page it takes the focus.
    std::unique_ptr<QWidget> widget_ = std::make_unique<QLineEdit>();
};
