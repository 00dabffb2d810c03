#include "ui/messages/about_window.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSysInfo>
#include <memory>

#include "support/message_fixture.h"
#include "ui/messages/system_description.h"

using namespace Qt::StringLiterals;

namespace {

class AboutWindow : public MessageTest {
  protected:
    void load() {
        window_ = std::make_unique<frmAbout>(fitting_, main_window_, u"Zimbora"_s, u"1.20.3"_s,
                                             [this] { ++asked_for_system_; });
    }

    void show(const std::function<void()> &look) {
        load();
        while_shown(
            *window_, [this] { window_->mutatmodálisan(); }, look);
    }

    [[nodiscard]] QPushButton *button(const char *name) const { return control<QPushButton>(*window_, name); }
    [[nodiscard]] QString text(const char *name) const { return control<QLabel>(*window_, name)->text(); }

    std::unique_ptr<frmAbout> window_;
    int asked_for_system_ = 0;
};

TEST_F(AboutWindow, names_the_program_and_its_version) {
    load();

    EXPECT_EQ(window_->windowTitle(), u"About Zimbora"_s);
    EXPECT_EQ(text("lblTitle"), u"Angol-Magyar, Magyar-Angol Szótár"_s);
    EXPECT_EQ(text("lblVersion"), u"Version: 1.20.3"_s);
}

TEST_F(AboutWindow, says_what_the_program_is_and_where_it_comes_from) {
    load();

    EXPECT_EQ(text("lblDescription(0)"), u"Szótárprogram szószedetkészítési lehetőséggel, szótanuló feladatokkal. "_s);
    EXPECT_TRUE(text("lblDescription(1)").contains(u"Zimbora fejlesztői"_s));
    EXPECT_TRUE(text("lblDescription(2)").contains(u"GNU GPL"_s));
    EXPECT_TRUE(text("lblDescription(3)").contains(u"FreeDict"_s));
}

TEST_F(AboutWindow, has_the_programs_icon_and_the_colour_of_all_windows) {
    reference_.háttérszínbeállít(QColor(10, 200, 30));
    QPixmap green(64, 64);
    green.fill(Qt::green);
    reference_.setWindowIcon(green);
    load();

    EXPECT_EQ(window_->háttérszín(), QColor(10, 200, 30));
    auto *icon = control<PictureBox>(*window_, "picIcon");
    EXPECT_EQ(icon->grab().toImage().pixelColor(icon->rect().center()), QColor(Qt::green));
}

TEST_F(AboutWindow, is_left_by_its_button_by_escape_and_by_enter) {
    show([this] { QTest::mouseClick(button("cmdOK"), Qt::LeftButton); });
    show([this] {
        QTest::keyClick(window_.get(), Qt::Key_Escape);
        EXPECT_FALSE(window_->isVisible());
    });
    show([this] {
        QTest::keyClick(window_.get(), Qt::Key_Return);
        EXPECT_FALSE(window_->isVisible());
    });

    EXPECT_EQ(asked_for_system_, 0);
}

TEST_F(AboutWindow, has_ok_under_the_keyboard_and_asks_for_the_system_by_its_other_button) {
    show([this] {
        EXPECT_EQ(window_->focusWidget(), button("cmdOK"));
        EXPECT_EQ(button("cmdSysInfo")->text(), u"&System Info..."_s);

        QTest::mouseClick(button("cmdSysInfo"), Qt::LeftButton);

        EXPECT_EQ(asked_for_system_, 1);
        EXPECT_TRUE(window_->isVisible());
    });
}

TEST_F(AboutWindow, asks_for_the_system_by_the_key_of_the_button) {
    show([this] {
        QTest::keyClick(window_.get(), Qt::Key_S, Qt::AltModifier);

        EXPECT_TRUE(QTest::qWaitFor([this] { return asked_for_system_ == 1; }));
    });
}

TEST_F(AboutWindow, has_everything_inside_with_whole_captions_on_every_screen) {
    for (const QSize &pixels : screens) {
        SCOPED_TRACE(pixels.width());
        use_screen(pixels);
        load();

        EXPECT_LE(window_->width(), pixels.width());
        EXPECT_LE(window_->height(), pixels.height());
        expect_no_overlap(*window_);
        for (const char *name : {"lblTitle", "lblVersion", "lblDescription(0)", "lblDescription(1)",
                                 "lblDescription(2)", "lblDescription(3)", "cmdOK", "cmdSysInfo"})
            expect_whole_caption(*window_, QString::fromUtf8(name));
    }
}

TEST(SystemDescription, names_program_system_toolkit_screens_and_folders) {
    const QString text = rendszerleírás(u"Zimbora 1.20.3"_s, u"Mappa: /szavak"_s);

    const QStringList lines = text.split(u'\n');
    EXPECT_EQ(lines.first(), u"Program: Zimbora 1.20.3"_s);
    EXPECT_EQ(lines.last(), u"Mappa: /szavak"_s);
    EXPECT_TRUE(lines.contains(u"Rendszer: "_s + QSysInfo::prettyProductName()));
    EXPECT_TRUE(lines.contains(u"Rendszermag: "_s + QSysInfo::kernelType() + u' ' + QSysInfo::kernelVersion()));
    EXPECT_TRUE(lines.contains(u"Processzor: "_s + QSysInfo::currentCpuArchitecture()));
    EXPECT_TRUE(lines.contains(u"Qt: %1 (offscreen)"_s.arg(QString::fromLatin1(qVersion()))));
    const QSize screen = QGuiApplication::primaryScreen()->size();
    EXPECT_TRUE(text.contains(u"\n1. képernyő: %1 × %2 képpont"_s.arg(screen.width()).arg(screen.height())));
}

}  // namespace
