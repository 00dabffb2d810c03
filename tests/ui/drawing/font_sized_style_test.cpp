#include "ui/drawing/font_sized_style.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QImage>
#include <QRadioButton>
#include <QSpinBox>
#include <QStyleFactory>
#include <QStyleOptionSpinBox>
#include <algorithm>
#include <memory>

#include "ui/drawing/fonts.h"

using namespace Qt::StringLiterals;

namespace {

class FontSizedStyleTest : public testing::Test {
  protected:
    static void set_letters(QWidget &control, double points) {
        QFont font = control.font();
        fonts::set_points(font, points);
        control.setFont(font);
    }

    [[nodiscard]] int circle_beside(double points) {
        set_letters(button_, points);
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
        set_letters(box, points);
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

TEST_F(FontSizedStyleTest, gives_a_combo_box_a_wider_arrow_beside_larger_letters_at_the_cost_of_its_text) {
    QComboBox box;
    const auto width_of = [&](QStyle::SubControl part, double points) {
        set_letters(box, points);
        QStyleOptionComboBox option;
        option.initFrom(&box);
        option.rect = QRect(0, 0, 300, 80);
        return style_.subControlRect(QStyle::CC_ComboBox, &option, part, &box).width();
    };
    const int wider = width_of(QStyle::SC_ComboBoxArrow, 40) - width_of(QStyle::SC_ComboBoxArrow, 5);

    EXPECT_GT(wider, 10);
    EXPECT_EQ(width_of(QStyle::SC_ComboBoxEditField, 5) - width_of(QStyle::SC_ComboBoxEditField, 40), wider);
}

TEST_F(FontSizedStyleTest, draws_larger_arrows_beside_larger_letters) {
    const auto arrow_height = [this](double points) {
        QComboBox box;
        box.setStyle(&style_);
        set_letters(box, points);
        box.resize(300, 80);
        const QImage picture = box.grab().toImage();
        // Down the middle of the arrow's part of the box, inside its frame.
        QStyleOptionComboBox option;
        option.initFrom(&box);
        const int x = style_.subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, &box).center().x();
        int dark = 0;
        for (int y = 5; y < 75; ++y)
            dark += picture.pixelColor(x, y).lightness() < 128 ? 1 : 0;
        return dark;
    };

    EXPECT_GT(arrow_height(40), 2 * std::max(1, arrow_height(9)));
}

TEST_F(FontSizedStyleTest, enlarges_the_icons_of_dialogs_and_the_handles_of_sliders_with_their_letters) {
    for (const QStyle::PixelMetric metric : {QStyle::PM_MessageBoxIconSize, QStyle::PM_SmallIconSize,
                                             QStyle::PM_SliderLength, QStyle::PM_SliderThickness}) {
        set_letters(button_, 9);
        const int small = style_.pixelMetric(metric, nullptr, &button_);
        set_letters(button_, 18);

        EXPECT_GT(style_.pixelMetric(metric, nullptr, &button_), small * 3 / 2) << metric;
    }
}

}  // namespace
