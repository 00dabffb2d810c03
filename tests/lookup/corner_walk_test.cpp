#include "lookup/corner_walk.h"

#include <gtest/gtest.h>

namespace {

constexpr QSizeF screen(15360, 11520);
constexpr QSizeF window(3600, 4590);
constexpr double right = 11760;
constexpr double bottom = 6930;

TEST(CornerWalk, goes_clockwise_from_the_bottom_right_corner_to_the_bottom_left_one) {
    EXPECT_EQ(következő_sarok({right, bottom}, window, screen), QPointF(0, bottom));
}

TEST(CornerWalk, goes_from_the_bottom_left_corner_to_the_top_left_one) {
    EXPECT_EQ(következő_sarok({0, bottom}, window, screen), QPointF(0, 0));
}

TEST(CornerWalk, goes_from_the_top_left_corner_to_the_top_right_one) {
    EXPECT_EQ(következő_sarok({0, 0}, window, screen), QPointF(right, 0));
}

TEST(CornerWalk, goes_from_the_top_right_corner_to_the_bottom_right_one) {
    EXPECT_EQ(következő_sarok({right, 0}, window, screen), QPointF(right, bottom));
}

TEST(CornerWalk, goes_from_anywhere_else_to_the_top_right_corner) {
    for (const QPointF &from : {QPointF(5000, 3000), QPointF(0, 3000), QPointF(right, 3000), QPointF(5000, 0),
                                QPointF(-300, -300), QPointF(20000, 20000), QPointF(bottom, right)})
        EXPECT_EQ(következő_sarok(from, window, screen), QPointF(right, 0)) << from.x() << ' ' << from.y();
}

TEST(CornerWalk, takes_a_place_beside_a_corner_for_anywhere_else) {
    for (const QPointF &from : {QPointF(right - 1, 0), QPointF(right, bottom + 1), QPointF(right, bottom - 0.5),
                                QPointF(1, bottom), QPointF(0, 1), QPointF(0.25, 0)})
        EXPECT_EQ(következő_sarok(from, window, screen), QPointF(right, 0)) << from.x() << ' ' << from.y();
}

TEST(CornerWalk, knows_the_corners_in_whole_twips) {
    constexpr QSizeF uneven(3600.4, 4590.6);

    // 11759.6 and 6929.4
    EXPECT_EQ(következő_sarok({11760, 0}, uneven, screen), QPointF(11760, 6929));
    EXPECT_EQ(következő_sarok({11759.6, 0}, uneven, screen), QPointF(11760, 0));
    EXPECT_EQ(következő_sarok({11760, 6929}, uneven, screen), QPointF(0, 6929));
    EXPECT_EQ(következő_sarok({0, 6929.4}, uneven, screen), QPointF(11760, 0));
}

TEST(CornerWalk, is_back_after_four_corners) {
    constexpr QSizeF uneven(3700.7, 4711.3);
    const QPointF top_right = következő_sarok({5000, 3000}, uneven, screen);
    QPointF now = top_right;
    for (int corner = 0; corner < 4; ++corner)
        now = következő_sarok(now, uneven, screen);

    EXPECT_EQ(now, top_right);
}

TEST(CornerWalk, stays_at_the_bottom_when_the_window_is_as_wide_as_the_screen) {
    EXPECT_EQ(következő_sarok({0, bottom}, {15360, 4590}, screen), QPointF(0, bottom));
}

TEST(Glide, takes_a_hundred_equal_steps) {
    EXPECT_EQ(siklás_lépései, 100);
    EXPECT_EQ(siklás({1000, 7000}, {3000, 2000}, 1), QPointF(1020, 6950));
    EXPECT_EQ(siklás({1000, 7000}, {3000, 2000}, 50), QPointF(2000, 4500));
    EXPECT_EQ(siklás({1000, 7000}, {3000, 2000}, 99), QPointF(2980, 2050));
}

TEST(Glide, is_at_its_target_after_the_last_step) {
    for (const QPointF &target : {QPointF(3000, 2000), QPointF(-150, 0), QPointF(11760, 6929), QPointF(1000, 7000)})
        EXPECT_EQ(siklás({1000, 7000}, target, 100), target) << target.x() << ' ' << target.y();
}

}  // namespace
