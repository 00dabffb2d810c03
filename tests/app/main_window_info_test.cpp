#include <QPlainTextEdit>
#include <QTimer>

#include "support/events.h"
#include "support/main_window_fixture.h"

using namespace Qt::StringLiterals;

namespace {

class MainWindowInfo : public MainWindowTest {
  protected:
    MainWindowInfo() {
        QCoreApplication::setApplicationName(u"Zimbora"_s);
        QCoreApplication::setApplicationVersion(u"3.1.4"_s);
        start();
    }

    [[nodiscard]] static QWidget *modal(const char16_t *name) {
        QWidget *window = QApplication::activeModalWidget();
        return window && window->objectName() == QString::fromUtf16(name) ? window : nullptr;
    }

    /// Opens the About box; `look` is called while it is open.
    void open_about_box(const std::function<void()> &look) {
        QTimer::singleShot(0, window_.get(), [&look] {
            look();
            if (QWidget *left_open = QApplication::activeModalWidget())
                left_open->close();
        });
        action("mnunévjegy")->trigger();
    }
};

TEST_F(MainWindowInfo, has_its_menu_with_help_about_box_and_the_makers_page) {
    EXPECT_EQ(control<QMenu>("mnu_info")->title(), u"&Info"_s);
    QStringList captions;
    for (const QAction *item : control<QMenu>("mnu_info")->actions())
        captions.append(item->text());
    EXPECT_EQ(captions, QStringList({u"&Súgó"_s, u"&Névjegy"_s, u"A Zimbora lapja"_s}));
    EXPECT_EQ(action("mnu_súgó")->shortcut(), QKeySequence(Qt::Key_F1));
    EXPECT_TRUE(control<QMenu>("mnu_info")->isEnabled());
}

TEST_F(MainWindowInfo, has_its_button_for_the_mini_window_and_a_link_to_the_makers_page) {
    EXPECT_EQ(button("cmd_kisablak")->text(), u"Kisablak"_s);
    EXPECT_TRUE(button("cmd_kisablak")->isVisible());
    EXPECT_TRUE(control<QLabel>("Label4")->text().contains(u">A Zimbora lapja</a>"_s));
    EXPECT_TRUE(control<QLabel>("Label4")->isVisible());
}

TEST_F(MainWindowInfo, shows_the_makers_page_at_a_click_anywhere_on_its_label) {
    QDir(root_.path()).mkpath(u"angolkavaro/help"_s);
    for (const char *page : {"angolkavaro/help/Kavaro súgó.mht", "angolkavaro/help/keszito.html"})
        write_file(place(page), "Content-Type: text/html\r\n\r\nhelp");

    QTest::mouseClick(control<QLabel>("Label4"), Qt::LeftButton, {}, {1, 1});

    ASSERT_NE(browser_, nullptr);
    ASSERT_FALSE(browser_->done.isEmpty());
    EXPECT_TRUE(browser_->done.back().endsWith(u"keszito.html"_s)) << browser_->done.back().toStdString();
}

TEST_F(MainWindowInfo, shows_the_makers_page_by_the_keyboard) {
    QDir(root_.path()).mkpath(u"angolkavaro/help"_s);
    for (const char *page : {"angolkavaro/help/Kavaro súgó.mht", "angolkavaro/help/keszito.html"})
        write_file(place(page), "Content-Type: text/html\r\n\r\nhelp");
    button("cmd_kisablak")->setFocus();

    QTest::keyClick(button("cmd_kisablak"), Qt::Key_Tab);
    ASSERT_EQ(window_->focusWidget(), control<QLabel>("Label4"));
    EXPECT_TRUE(control<QLabel>("Label4")->hasSelectedText());
    QTest::keyClick(window_->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(window_->focusWidget(), button("kilép"));
    QTest::keyClick(window_->focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    QTest::keyClick(window_->focusWidget(), Qt::Key_Return);

    ASSERT_NE(browser_, nullptr);
    ASSERT_FALSE(browser_->done.isEmpty());
    EXPECT_TRUE(browser_->done.back().endsWith(u"keszito.html"_s)) << browser_->done.back().toStdString();
}

TEST_F(MainWindowInfo, tells_once_that_the_help_is_damaged) {
    QDir(root_.path()).mkpath(u"angolkavaro/help"_s);
    write_file(place("angolkavaro/help/Kavaro súgó.mht"), "");

    for (int time = 0; time < 2; ++time) {
        browser_ = nullptr;
        action("mnu_súgó")->trigger();
        ASSERT_NE(browser_, nullptr);
        browser_->widget()->window()->close();
        QCoreApplication::processEvents();
    }

    ASSERT_EQ(boxes_.told.size(), 1);
    EXPECT_TRUE(boxes_.told[0].contains(u"Kavaro súgó.mht” súgófájl sérült: üres."_s)) << boxes_.told[0].toStdString();
}

TEST_F(MainWindowInfo, opens_the_about_box_with_the_programs_name_and_version) {
    bool seen = false;

    open_about_box([&] {
        const QWidget *box = modal(u"frmAbout");
        ASSERT_NE(box, nullptr);
        seen = true;
        EXPECT_EQ(box->windowTitle(), u"About Zimbora"_s);
        EXPECT_EQ(box->findChild<QLabel *>(u"lblVersion"_s)->text(), u"Version: 3.1.4"_s);
    });

    EXPECT_TRUE(seen);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(window_->isVisible());
}

TEST_F(MainWindowInfo, says_nothing_itself_when_the_systems_information_tool_has_started) {
    information_tool_ = InformationTool::started;

    open_about_box([&] {
        QTest::mouseClick(modal(u"frmAbout")->findChild<QPushButton *>(u"cmdSysInfo"_s), Qt::LeftButton);
        EXPECT_NE(modal(u"frmAbout"), nullptr);
    });

    EXPECT_TRUE(boxes_.told.isEmpty());
}

TEST_F(MainWindowInfo, tells_when_the_systems_information_tool_is_not_to_be_had) {
    information_tool_ = InformationTool::unavailable;

    open_about_box(
        [&] { QTest::mouseClick(modal(u"frmAbout")->findChild<QPushButton *>(u"cmdSysInfo"_s), Qt::LeftButton); });

    EXPECT_EQ(boxes_.told, QStringList{u"System Information Is Unavailable At This Time"_s});
}

TEST_F(MainWindowInfo, shows_what_is_known_of_the_system_in_front_of_the_about_box) {
    QString title;
    QString text;

    open_about_box([&] {
        QTimer::singleShot(0, window_.get(), [&] {
            QWidget *message = modal(u"frm_üzenet");
            ASSERT_NE(message, nullptr);
            title = message->windowTitle();
            text = message->findChild<QPlainTextEdit *>(u"txt_üzenet"_s)->toPlainText();
            message->close();
        });
        QTest::mouseClick(modal(u"frmAbout")->findChild<QPushButton *>(u"cmdSysInfo"_s), Qt::LeftButton);
    });

    EXPECT_EQ(title, u"Zimbora Angol-Magyar Szótár - Rendszeradatok"_s);
    EXPECT_TRUE(text.contains(u"Program: Zimbora 3.1.4"_s));
    EXPECT_TRUE(text.contains(place("angol"))) << text.toStdString();
    EXPECT_TRUE(text.contains(place("c"))) << text.toStdString();
}

TEST_F(MainWindowInfo, tells_below_it_which_data_of_the_suggestions_are_missing) {
    QString text;

    open_about_box([&] {
        QTimer::singleShot(0, window_.get(), [&] {
            QWidget *message = modal(u"frm_üzenet");
            ASSERT_NE(message, nullptr);
            EXPECT_TRUE(comes_true([&] {
                text = message->findChild<QPlainTextEdit *>(u"txt_üzenet"_s)->toPlainText();
                return text.contains(u"hiányzik"_s);
            }));
            message->close();
        });
        QTest::mouseClick(modal(u"frmAbout")->findChild<QPushButton *>(u"cmdSysInfo"_s), Qt::LeftButton);
    });

    EXPECT_TRUE(text.contains(u"szavak.idx"_s)) << text.toStdString();
}

}  // namespace
