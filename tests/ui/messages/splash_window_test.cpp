#include "ui/messages/splash_window.h"

#include <memory>

#include "support/message_fixture.h"
#include "ui/drawing/fonts.h"

using namespace Qt::StringLiterals;

namespace {

class SplashWindow : public MessageTest {
  protected:
    void load(const QString &system = u"Debian GNU/Linux 12 (bookworm)"_s) {
        window_ = std::make_unique<FrmFolyamat>(fitting_, u"1.20.3"_s, system);
    }

    [[nodiscard]] QString text(const char *name) const { return control<QLabel>(*window_, name)->text(); }

    std::unique_ptr<FrmFolyamat> window_;
    static constexpr const char *labels[] = {"lblCompany",  "lblCompanyProduct", "lblProductName",
                                             "lblPlatform", "lblVersion",        "lblMaker"};
};

TEST_F(SplashWindow, names_the_program_its_version_and_the_system) {
    load();

    EXPECT_EQ(window_->windowTitle(), u"Zimbora"_s);
    EXPECT_EQ(text("lblProductName"), u"Zimbora"_s);
    EXPECT_EQ(text("lblCompanyProduct"), u"Angol-Magyar, Magyar-Angol Szótár"_s);
    EXPECT_EQ(text("lblVersion"), u"1.20.3 verzió"_s);
    EXPECT_EQ(text("lblPlatform"), u"Debian GNU/Linux 12 (bookworm)"_s);
    EXPECT_EQ(text("lblCompany"), u"A Zimbora fejlesztői"_s);
}

TEST_F(SplashWindow, says_why_the_first_start_takes_longer) {
    load();

    EXPECT_EQ(text("lblMaker"), u"A programkönyvtár első indításkor készül el."_s);
    EXPECT_EQ(control<QLabel>(*window_, "lblMaker")->font().families(), QStringList{fonts::times_new_roman_ce});
}

TEST_F(SplashWindow, has_no_frame_and_stands_in_the_middle_of_the_screen) {
    load();

    EXPECT_TRUE(window_->windowFlags() & Qt::FramelessWindowHint);
    EXPECT_NEAR(window_->geometry().center().x(), 512, 1);
    EXPECT_NEAR(window_->geometry().center().y(), 384, 1);
    EXPECT_NEAR(share(*window_), 0.5, 0.02);
}

TEST_F(SplashWindow, has_everything_inside_its_frame_with_whole_texts_on_every_screen) {
    for (const QSize &pixels : screens) {
        SCOPED_TRACE(pixels.width());
        use_screen(pixels);
        load();

        expect_no_overlap(*window_);
        const QRectF frame = window_->hely(control<QFrame>(*window_, "Frame1"));
        for (const char *name : labels) {
            expect_whole_caption(*window_, QString::fromUtf8(name));
            EXPECT_TRUE(frame.contains(window_->hely(control<QLabel>(*window_, name)))) << name;
        }
        EXPECT_TRUE(frame.contains(window_->hely(control<PictureBox>(*window_, "imgLogo"))));
    }
}

TEST_F(SplashWindow, has_whole_texts_on_screens_of_any_width) {
    for (int width = 640; width <= 2560; width += 10) {
        SCOPED_TRACE(width);
        use_screen({width, width * 3 / 4});
        load();

        for (const char *name : labels)
            expect_whole_caption(*window_, QString::fromUtf8(name));
    }
}

TEST_F(SplashWindow, shows_a_long_name_of_the_system_whole) {
    load(u"Some Very Long Distribution Name 2026.11 LTS (codename of several words)"_s);

    expect_whole_caption(*window_, u"lblPlatform"_s);
}

TEST_F(SplashWindow, goes_with_its_object_and_blocks_nothing) {
    load();
    window_->show();
    EXPECT_TRUE(window_->isVisible());
    EXPECT_FALSE(window_->isModal());

    window_.reset();

    for (const QWidget *left : QApplication::topLevelWidgets())
        EXPECT_NE(left->objectName(), u"FrmFolyamat"_s);
}

}  // namespace
