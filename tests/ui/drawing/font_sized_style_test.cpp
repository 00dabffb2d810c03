#include "ui/drawing/font_sized_style.h"

#include <gtest/gtest.h>

#include <QRadioButton>
#include <QSpinBox>
#include <QStyleFactory>
#include <QStyleOptionSpinBox>
#include <memory>

#include "ui/drawing/fonts.h"

using namespace Qt::StringLiterals;

namespace {

class FontSizedStyleTest : public testing::Test {
  protected:
    [[nodiscard]] int circle_beside(double points) {
        QFont font = button_.font();
        fonts::set_points(font, points);
        button_.setFont(font);
        return style_.pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, nullptr, &button_);
    }

    FontSizedStyle style_{QStyleFactory::create(u"fusion"_s)};
    QRadioButton button_;
};

TEST_F(FontSizedStyleTest, draws_larger_circles_beside_larger_letters) {
    EXPECT_GT(circle_beside(40), 2 * circle_beside(9));
}

TEST_F(FontSizedStyleTest, never_draws_smaller_circles_than_the_desktop_does) {
    const std::unique_ptr<QStyle> desktop(QStyleFactory::create(u"fusion"_s));

    EXPECT_EQ(circle_beside(5), desktop->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, nullptr, &button_));
}

TEST_F(FontSizedStyleTest, gives_a_spin_box_wider_arrows_beside_larger_letters_at_the_cost_of_its_text) {
    QSpinBox box;
    const auto width_of = [&](QStyle::SubControl part, double points) {
        QFont font = box.font();
        fonts::set_points(font, points);
        box.setFont(font);
        QStyleOptionSpinBox option;
        option.initFrom(&box);
        option.rect = QRect(0, 0, 200, 80);
        option.frame = true;
        option.subControls = QStyle::SC_All;
        return style_.subControlRect(QStyle::CC_SpinBox, &option, part, &box).width();
    };
    const int arrows = width_of(QStyle::SC_SpinBoxUp, 40) - width_of(QStyle::SC_SpinBoxUp, 5);

    EXPECT_GT(arrows, 10);
    EXPECT_EQ(width_of(QStyle::SC_SpinBoxDown, 40) - width_of(QStyle::SC_SpinBoxDown, 5), arrows);
    EXPECT_EQ(width_of(QStyle::SC_SpinBoxEditField, 5) - width_of(QStyle::SC_SpinBoxEditField, 40), arrows);
}

}  // namespace
