#include "ui/font_sized_style.h"

#include <gtest/gtest.h>

#include <QRadioButton>
#include <QStyleFactory>
#include <memory>

#include "ui/fonts.h"

namespace {

class FontSizedStyleTest : public testing::Test {
  protected:
    [[nodiscard]] int circle_beside(double points) {
        QFont font = button_.font();
        fonts::set_points(font, points);
        button_.setFont(font);
        return style_.pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, nullptr, &button_);
    }

    FontSizedStyle style_{QStyleFactory::create(QStringLiteral("fusion"))};
    QRadioButton button_;
};

TEST_F(FontSizedStyleTest, draws_larger_circles_beside_larger_letters) {
    EXPECT_GT(circle_beside(40), 2 * circle_beside(9));
}

TEST_F(FontSizedStyleTest, never_draws_smaller_circles_than_the_desktop_does) {
    const std::unique_ptr<QStyle> desktop(QStyleFactory::create(QStringLiteral("fusion")));

    EXPECT_EQ(circle_beside(5), desktop->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, nullptr, &button_));
}

}  // namespace
