#include <gmock/gmock.h>

#include <QComboBox>
#include <QTimer>

#include "support/main_window_fixture.h"

using namespace Qt::StringLiterals;

using testing::ElementsAre;

namespace {

/// Printing, from the menu of the main window.
class MainWindowPrinting : public MainWindowTest {
  protected:
    MainWindowPrinting() { printers_.installed = {u"Printer"_s}; }

    /// Opens the print settings; `act` is called with them. They are closed then.
    void in_print_settings(const std::function<void(frm_nyomtatás &)> &act) {
        bool opened = false;
        QTimer::singleShot(0, window_.get(), [&] {
            auto *settings = dynamic_cast<frm_nyomtatás *>(QApplication::activeModalWidget());
            ASSERT_NE(settings, nullptr);
            opened = true;
            act(*settings);
            settings->close();
        });
        action("mnufájlnyomtatás")->trigger();
        EXPECT_TRUE(opened);
    }
    static void press(const frm_nyomtatás &settings, const char *name) {
        QTest::mouseClick(settings.findChild<QPushButton *>(QString::fromUtf8(name)), Qt::LeftButton);
    }
    [[nodiscard]] QString list_file() {
        return word_list("animals.szs",
                         "dog:kutya\r\n"
                         "deer:\xf5z\r\n");
    }
};

TEST_F(MainWindowPrinting, stands_in_the_menu_between_saving_and_the_recent_files) {
    start();

    QStringList items;
    for (const QAction *one : control<QMenu>("mnufájl")->actions())
        items.append(one->objectName());
    EXPECT_EQ(items.mid(3, 6).join(u' '), u"elv1 mnufájlment mnufájlmentmásként elv2 mnufájlnyomtatás elv3"_s);
    EXPECT_EQ(action("mnufájlnyomtatás")->text(), u"Nyomtatás..."_s);
    EXPECT_TRUE(action("elv2")->isSeparator());
    EXPECT_EQ(action("mnufájlnyomtatás")->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_P));
}

TEST_F(MainWindowPrinting, can_be_had_while_the_list_holds_a_pair) {
    start();
    EXPECT_FALSE(action("mnufájlnyomtatás")->isEnabled());

    type("apple");
    click("hozzáad");
    EXPECT_TRUE(action("mnufájlnyomtatás")->isEnabled());

    list("szószedet")->setFocus();
    click("sztöröl");
    EXPECT_FALSE(action("mnufájlnyomtatás")->isEnabled());
}

TEST_F(MainWindowPrinting, shows_the_print_settings_modally_in_front_of_the_main_window) {
    start(list_file());

    in_print_settings([this](const frm_nyomtatás &settings) {
        EXPECT_EQ(settings.windowModality(), Qt::ApplicationModal);
        EXPECT_TRUE(window_->isVisible());
    });

    EXPECT_TRUE(window_->isVisible());
    for (const QWidget *left : QApplication::topLevelWidgets())
        EXPECT_EQ(dynamic_cast<const frm_nyomtatás *>(left), nullptr);
}

TEST_F(MainWindowPrinting, prints_the_word_list_under_the_path_of_its_file) {
    start(list_file());

    in_print_settings([](const frm_nyomtatás &settings) { press(settings, "cmd_nyomtat"); });

    EXPECT_THAT(printers_.jobs.handed_over, ElementsAre(u"Printer animals"_s));
    ASSERT_EQ(printers_.jobs.texts.size(), 3);
    EXPECT_EQ(printers_.jobs.texts[0].text, QDir::toNativeSeparators(place("animals.szs")) + u" szószedet"_s);
    EXPECT_EQ(printers_.jobs.texts[1].text, u"dog  -  kutya"_s);
    EXPECT_EQ(printers_.jobs.texts[2].text, u"deer  -  őz"_s);
}

TEST_F(MainWindowPrinting, makes_the_print_settings_anew_each_time) {
    start(list_file());
    in_print_settings([](const frm_nyomtatás &settings) {
        EXPECT_EQ(settings.findChild<QComboBox *>(u"list_nyomtatók"_s)->count(), 2);
        press(settings, "cmd_mégsem");
    });
    printers_.installed.append(u"Another"_s);

    in_print_settings([](const frm_nyomtatás &settings) {
        EXPECT_EQ(settings.findChild<QComboBox *>(u"list_nyomtatók"_s)->count(), 3);
    });
}

}  // namespace
