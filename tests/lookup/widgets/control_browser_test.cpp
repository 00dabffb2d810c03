#include "lookup/widgets/control_browser.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QtTest/QTest>

#include "lookup/widgets/system_browser.h"
#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

/// A browser whose surface is shown, with rules that open nothing but the web site x.hu, and what it told.
class ControlBrowserTest : public testing::Test {
  protected:
    ControlBrowserTest() {
        browser_.notify({[] {}, [] {}, [this](const QString &sentence) { refused_.append(sentence); }});
        browser_.widget()->resize(300, 200);
        browser_.widget()->show();
    }

    QStringList asked_;
    QStringList refused_;
    ControlBrowser browser_{{{}, {}, [this](const QUrl &address) -> std::optional<Failure> {
                                 asked_.append(address.toString());
                                 if (address.host() == u"x.hu")
                                     return std::nullopt;
                                 return Failure{u"Nem."_s};
                             }}};
};

TEST_F(ControlBrowserTest, hosts_the_systems_control) {
    EXPECT_TRUE(browser_.works());
    EXPECT_FALSE(browser_.widget()->findChild<QWidget *>());
    EXPECT_EQ(browser_.location_address(), QString());
}

TEST_F(ControlBrowserTest, asks_before_a_step_and_tells_why_it_is_not_made) {
    browser_.navigate(QUrl(u"https://y.hu/"_s));

    EXPECT_TRUE(QTest::qWaitFor([this] { return !refused_.isEmpty(); }, 10000));
    EXPECT_EQ(asked_, QStringList{u"https://y.hu/"_s});
    EXPECT_EQ(refused_, QStringList{u"Nem."_s});
}

TEST_F(ControlBrowserTest, does_nothing_where_there_is_no_way_to_go) {
    browser_.go_back();
    browser_.go_forward();
    browser_.refresh();
    browser_.stop();
    browser_.set_zoom(1.5);

    EXPECT_FALSE(browser_.busy());
    EXPECT_EQ(refused_, QStringList());
}

TEST_F(ControlBrowserTest, is_made_for_the_help_viewer) {
    const auto made = make_system_browser({{}, {}, [](const QUrl &) { return std::nullopt; }});

    EXPECT_TRUE(std::holds_alternative<std::unique_ptr<WebBrowser>>(made));
}

}  // namespace
