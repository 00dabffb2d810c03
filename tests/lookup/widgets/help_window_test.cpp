#include "lookup/widgets/help_window.h"

#include <QLineEdit>
#include <QListView>

#include "support/fake_web_browser.h"
#include "support/help_window_fixture.h"

using namespace Qt::StringLiterals;

namespace {

const QString waiting = u"Working..."_s;

class HelpWindow : public HelpWindowTest {
  protected:
    HelpWindow() { write_file(document(), "Content-Type: text/html\r\n\r\nhelp"); }

    /// Loads and shows the viewer with a browser that the test plays.
    void open() {
        load([this](const WebBrowserRules &rules) -> WebBrowserResult {
            rules_ = rules;
            auto browser = std::make_unique<FakeWebBrowser>();
            browser_ = browser.get();
            browser_->is_busy = busy_at_start_;
            return browser;
        });
        show();
    }

    void open_at_rest() {
        open();
        ASSERT_TRUE(QTest::qWaitFor([this] { return !timer()->isActive(); }));
        browser_->done.clear();
    }

    [[nodiscard]] QTimer *timer() const { return control<QTimer>("timTimer"); }
    [[nodiscard]] QRectF place(const char *name) const { return window_->hely(control<QWidget>(name)); }

    /// The browser comes to an address.
    void arrive(const char16_t *address) {
        browser_->address = QString::fromUtf16(address);
        browser_->notifications.navigation_finished();
    }

    WebBrowserRules rules_;
    FakeWebBrowser *browser_ = nullptr;
    bool busy_at_start_ = false;
};

TEST_F(HelpWindow, loads_under_its_name_with_its_caption) {
    busy_at_start_ = true;
    open();

    EXPECT_EQ(window_->objectName(), u"frm_súgó"_s);
    EXPECT_EQ(caption(), u"Kavaro - Súgó"_s);
    EXPECT_TRUE(control<QToolBar>("tbToolBar")->isVisible());
    EXPECT_EQ(control<QLabel>("lblAddress")->text(), u"&Address:"_s);
    EXPECT_EQ(control<QLabel>("lblAddress")->buddy(), address_box());
    EXPECT_EQ(control<PictureBox>("picAddress")->palette().color(QPalette::Window), QColor(Qt::cyan));
}

TEST_F(HelpWindow, starts_at_the_program_folder_text_followed_by_the_document_without_a_separator) {
    open();

    const QString start = program_ + u"kavaro\\help\\Kavaro súgó.mht"_s;
    EXPECT_EQ(address_box()->currentText(), start);
    EXPECT_EQ(listed(), QStringList{start});
    EXPECT_TRUE(timer()->isActive());
    EXPECT_EQ(browser_->done, QStringList{QUrl::fromLocalFile(document()).toString()});
    EXPECT_TRUE(notes_.isEmpty());
}

TEST_F(HelpWindow, tells_when_its_document_is_damaged) {
    open();
    EXPECT_TRUE(warnings_.isEmpty());
    write_file(document(), "");

    open();

    EXPECT_EQ(warnings_, QStringList{u"A(z) „%1” súgófájl sérült: üres. Segíthet a program újratelepítése."_s.arg(
                             QDir::toNativeSeparators(document()))});
}

TEST_F(HelpWindow, has_a_toolbar_with_six_buttons_in_hungarian) {
    open();

    QStringList keys;
    for (QAction *action : control<QToolBar>("tbToolBar")->actions()) {
        auto *button = dynamic_cast<QToolButton *>(control<QToolBar>("tbToolBar")->widgetForAction(action));
        ASSERT_TRUE(button);
        keys.append(button->objectName());
        EXPECT_FALSE(button->icon().isNull());
        EXPECT_FALSE(button->accessibleName().isEmpty());
        EXPECT_TRUE(button->toolTip().startsWith(button->accessibleName()));
    }
    EXPECT_EQ(keys.join(u' '), u"Back Forward Refresh Home Search Stop"_s);
}

TEST_F(HelpWindow, tells_the_browser_what_each_button_says_and_waits) {
    open_at_rest();
    const std::pair<const char *, const char16_t *> buttons[] = {
        {"Back", u"back"}, {"Forward", u"forward"}, {"Refresh", u"refresh"}, {"Home", u"home"}, {"Search", u"search"}};
    for (const auto &[button, action] : buttons) {
        press(button);
        EXPECT_EQ(browser_->done, QStringList{QString::fromUtf16(action)});
        EXPECT_TRUE(timer()->isActive()) << button;
        browser_->done.clear();
        timer()->stop();
    }
}

TEST_F(HelpWindow, stops_with_the_name_of_the_location) {
    busy_at_start_ = true;
    open();
    ASSERT_TRUE(QTest::qWaitFor([this] { return caption() == waiting; }));
    browser_->done.clear();
    browser_->name = u"Félig kész lap"_s;

    press("Stop");

    EXPECT_EQ(browser_->done, QStringList{u"stop"_s});
    EXPECT_FALSE(timer()->isActive());
    EXPECT_EQ(caption(), u"Félig kész lap"_s);
}

TEST_F(HelpWindow, says_that_it_works_while_the_browser_is_busy_and_then_where_it_is) {
    busy_at_start_ = true;
    open();
    EXPECT_TRUE(QTest::qWaitFor([this] { return caption() == waiting; }));
    EXPECT_TRUE(timer()->isActive());

    browser_->is_busy = false;

    EXPECT_TRUE(QTest::qWaitFor([this] { return caption() == u"Zimbora súgó"_s; }));
    EXPECT_FALSE(timer()->isActive());
}

TEST_F(HelpWindow, takes_the_name_of_the_location_when_a_download_has_finished) {
    busy_at_start_ = true;
    open();
    browser_->name = u"Más lap"_s;

    browser_->notifications.download_finished();

    EXPECT_EQ(caption(), u"Más lap"_s);
}

TEST_F(HelpWindow, moves_the_address_to_the_top_of_the_list_when_a_navigation_has_finished) {
    open();
    const QString start = listed().value(0);

    arrive(u"http://a.hu/");
    arrive(u"http://b.hu/");
    EXPECT_EQ(listed(), QStringList({u"http://b.hu/"_s, u"http://a.hu/"_s, start}));
    EXPECT_EQ(address_box()->currentIndex(), 0);

    arrive(u"http://a.hu/");
    EXPECT_EQ(listed(), QStringList({u"http://a.hu/"_s, u"http://b.hu/"_s, start}));
    EXPECT_EQ(address_box()->currentIndex(), 0);
    EXPECT_EQ(address_box()->currentText(), u"http://a.hu/"_s);
}

TEST_F(HelpWindow, does_not_navigate_again_because_a_navigation_has_finished) {
    open_at_rest();

    arrive(u"http://a.hu/");

    EXPECT_TRUE(browser_->done.isEmpty());
}

TEST_F(HelpWindow, navigates_to_an_entry_that_is_chosen) {
    open();
    arrive(u"http://a.hu/");
    arrive(u"http://b.hu/");
    timer()->stop();
    browser_->done.clear();

    address_box()->showPopup();
    auto *list = address_box()->view();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(list->window()));
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Return);

    EXPECT_EQ(browser_->done, QStringList{u"http://a.hu/"_s});
    EXPECT_TRUE(timer()->isActive());
}

TEST_F(HelpWindow, navigates_to_the_text_of_the_box_when_enter_is_pressed) {
    open_at_rest();

    enter_address(u"www.x.hu"_s);

    EXPECT_EQ(browser_->done, QStringList{u"http://www.x.hu"_s});
    EXPECT_TRUE(timer()->isActive());
}

TEST_F(HelpWindow, navigates_once_to_a_text_that_is_an_entry_too) {
    open();
    arrive(u"http://a.hu/");
    arrive(u"http://b.hu/");
    browser_->done.clear();

    enter_address(u"http://a.hu/"_s);

    EXPECT_EQ(browser_->done, QStringList{u"http://a.hu/"_s});
}

TEST_F(HelpWindow, does_not_navigate_because_the_focus_leaves_the_box) {
    open();
    arrive(u"http://a.hu/");
    arrive(u"http://b.hu/");
    browser_->done.clear();
    address_box()->setFocus();
    address_box()->setEditText(u"http://a.hu/"_s);

    QTest::keyClick(address_box(), Qt::Key_Tab);

    ASSERT_FALSE(address_box()->hasFocus());
    EXPECT_TRUE(browser_->done.isEmpty());
}

TEST_F(HelpWindow, does_nothing_for_an_empty_box) {
    open_at_rest();

    enter_address(u"  "_s);

    EXPECT_TRUE(browser_->done.isEmpty());
    EXPECT_TRUE(notes_.isEmpty());
}

TEST_F(HelpWindow, refuses_what_it_may_not_open_with_a_note) {
    open_at_rest();

    for (const char16_t *address : {u"file:///etc/passwd", u"/etc/passwd", u"javascript:alert(1)", u"ftp://x.hu/"}) {
        notes_.clear();
        enter_address(QString::fromUtf16(address));
        EXPECT_TRUE(browser_->done.isEmpty());
        ASSERT_EQ(notes_.size(), 1);
        EXPECT_TRUE(notes_[0].contains(u"itt nem nyitható meg"_s)) << notes_[0].toStdString();
    }
}

TEST_F(HelpWindow, notes_what_the_browser_did_not_open) {
    open();

    browser_->notifications.refused(u"Nem."_s);

    EXPECT_EQ(notes_, QStringList{u"Nem."_s});
}

TEST_F(HelpWindow, gives_the_browser_its_home_page_and_the_rule_of_addresses) {
    open();

    EXPECT_EQ(rules_.home, QUrl::fromLocalFile(document()));
    EXPECT_EQ(rules_.search.scheme(), u"https"_s);
    EXPECT_FALSE(rules_.obstacle(rules_.home));
    EXPECT_FALSE(rules_.obstacle(rules_.search));
    EXPECT_TRUE(rules_.obstacle(QUrl(u"file:///etc/passwd"_s)));
}

TEST_F(HelpWindow, opens_an_address_that_the_main_window_puts_into_the_box) {
    open_at_rest();

    window_->megnyit(u"https://a.hu/x"_s);

    EXPECT_EQ(address_box()->currentText(), u"https://a.hu/x"_s);
    EXPECT_EQ(browser_->done, QStringList{u"https://a.hu/x"_s});
    EXPECT_TRUE(timer()->isActive());
}

TEST_F(HelpWindow, lays_its_controls_out) {
    for (const QSize &pixels : {QSize(800, 600), QSize(1024, 768), QSize(2560, 1440)}) {
        screen_ = QRectF(QPointF(0, 0), QSizeF(pixels) * 15);
        open();
        for (const double factor : {1.0, 0.6}) {
            window_->resize(window_->size() * factor);
            QCoreApplication::processEvents();
            const double width = window_->belsőszélesség();
            const QRectF box = place("cboAddress");
            EXPECT_DOUBLE_EQ(box.left(), 50);
            EXPECT_DOUBLE_EQ(box.top(), place("lblAddress").bottom() + 15);
            EXPECT_DOUBLE_EQ(box.width(), width - 100);
            const QRectF page = place("brwWebBrowser");
            EXPECT_DOUBLE_EQ(page.top(), place("picAddress").bottom());
            EXPECT_DOUBLE_EQ(page.width(), width - 100);
            EXPECT_DOUBLE_EQ(page.height(), window_->belsőmagasság() - page.top() - 100);
            EXPECT_TRUE(place("picAddress").contains(box));
            EXPECT_TRUE(place("picAddress").contains(place("lblAddress")));
            EXPECT_DOUBLE_EQ(place("picAddress").top(), place("tbToolBar").bottom());
        }
    }
}

TEST_F(HelpWindow, is_never_given_a_size_below_nothing) {
    open();

    window_->resize(1, 1);
    QCoreApplication::processEvents();

    EXPECT_GE(place("brwWebBrowser").height(), 0);
    EXPECT_GE(place("cboAddress").width(), 0);
}

TEST_F(HelpWindow, takes_a_good_share_of_the_screen_with_letters_that_fit) {
    for (const QSize &pixels : {QSize(800, 600), QSize(1024, 768), QSize(2560, 1440)}) {
        screen_ = QRectF(QPointF(0, 0), QSizeF(pixels) * 15);
        open();

        const double share = std::max(window_->szélesség() / screen_.width(), window_->magasság() / screen_.height());
        EXPECT_NEAR(share, 0.85, 0.03);
        const auto *label = control<QLabel>("lblAddress");
        EXPECT_LE(label->sizeHint().height(), label->height());
        EXPECT_LE(address_box()->lineEdit()->sizeHint().height(), address_box()->height() + 2);
        EXPECT_LE(control<QToolBar>("tbToolBar")->sizeHint().height(), control<QToolBar>("tbToolBar")->height());
        EXPECT_GT(browser_->zoom, pixels.width() / 1300.0 - 0.2);
    }
}

TEST_F(HelpWindow, is_reached_by_tab_from_control_to_control) {
    open_at_rest();
    QStringList order;
    ASSERT_EQ(window_->focusWidget(), browser_->widget());

    for (int i = 0; i < 8; ++i) {
        QTest::keyClick(window_->focusWidget(), Qt::Key_Tab);
        order.append(window_->focusWidget()->objectName());
    }

    EXPECT_EQ(order.join(u' '), u"Back Forward Refresh Home Search Stop cboAddress brwWebBrowser"_s);
}

TEST_F(HelpWindow, reaches_the_address_box_by_its_mnemonic) {
    open_at_rest();

    QTest::keyClick(window_.get(), Qt::Key_A, Qt::AltModifier);

    EXPECT_EQ(window_->focusWidget(), address_box());
}

TEST_F(HelpWindow, tells_why_there_is_no_browser_and_goes_on) {
    const QString reason = u"A súgó böngészője nem tölthető be."_s;
    load([&](const WebBrowserRules &) -> WebBrowserResult { return Failure{reason}; });
    show();

    for (const char *button : {"Back", "Forward", "Refresh", "Home", "Search", "Stop"})
        press(button);
    enter_address(u"www.x.hu"_s);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !timer()->isActive(); }));

    EXPECT_EQ(boxes_.told, QStringList{reason});
    EXPECT_EQ(control<QLabel>("brwWebBrowser")->text(), reason);
    EXPECT_EQ(caption(), u"Kavaro - Súgó"_s);
}

TEST_F(HelpWindow, names_the_document_that_is_missing) {
    QFile::remove(document());

    open();

    ASSERT_EQ(notes_.size(), 1);
    EXPECT_TRUE(notes_[0].contains(u"Kavaro súgó.mht"_s));
    EXPECT_TRUE(browser_->done.isEmpty());
}

TEST_F(HelpWindow, stops_when_it_is_closed_and_tells_so_afterwards) {
    open_at_rest();

    window_->close();

    EXPECT_EQ(browser_->done, QStringList{u"stop"_s});
    EXPECT_EQ(closed_, 0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return closed_ == 1; }));
}

TEST_F(HelpWindow, may_be_destroyed_right_after_it_was_closed) {
    open();

    window_->close();
    window_.reset();
    QCoreApplication::processEvents();

    EXPECT_EQ(closed_, 0);
}

}  // namespace
