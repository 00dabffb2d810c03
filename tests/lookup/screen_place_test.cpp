#include "lookup/screen_place.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

constexpr QSizeF window(3000, 4000);
const QRectF main_screen(0, 0, 15360, 11520);
/// To the right of the main screen, and lower.
const QRectF right_screen(15360, 1500, 28800, 16200);
/// To the left of the main screen, and higher.
const QRectF left_screen(-19200, -3000, 19200, 15360);
const QVector<QRectF> three_screens{main_screen, right_screen, left_screen};

void expect_kept(const QPointF &place, const QVector<QRectF> &screens) {
    EXPECT_EQ(képernyőre(place, window, screens), place) << place.x() << ' ' << place.y();
}

TEST(PlaceOnAScreen, is_kept_as_it_is) {
    for (const QPointF &place : {QPointF(0, 0), QPointF(7680, 5760), QPointF(12360, 7520)})
        expect_kept(place, {main_screen});
}

TEST(PlaceOnAScreen, is_kept_where_just_enough_of_the_window_is_seen_to_take_hold_of_it) {
    for (const QPointF &place : {QPointF(14460, 5000), QPointF(5000, 11220), QPointF(14460, 11220)})
        expect_kept(place, {main_screen});
    EXPECT_EQ(képernyőre({14461, 5000}, window, {main_screen}), QPointF(12360, 5000));
    EXPECT_EQ(képernyőre({5000, 11221}, window, {main_screen}), QPointF(5000, 7520));
}

TEST(PlaceOnAScreen, may_lie_on_any_of_several_and_be_negative) {
    for (const QPointF &place : {QPointF(15360, 1500), QPointF(43260, 17400), QPointF(-19200, -3000), QPointF(-900, 0)})
        expect_kept(place, three_screens);
}

TEST(PlaceOnAScreen, is_kept_where_what_is_taken_hold_of_lies_on_two) {
    expect_kept({-1, 0}, three_screens);
}

TEST(PlaceOnNoScreen, is_moved_just_far_enough_for_the_whole_window) {
    const QVector<QRectF> one{main_screen};
    EXPECT_EQ(képernyőre({20000, 5000}, window, one), QPointF(12360, 5000));
    EXPECT_EQ(képernyőre({5000, 20000}, window, one), QPointF(5000, 7520));
    EXPECT_EQ(képernyőre({-100, 5000}, window, one), QPointF(0, 5000));
    EXPECT_EQ(képernyőre({5000, -9000}, window, one), QPointF(5000, 0));
    EXPECT_EQ(képernyőre({999999, -999999}, window, one), QPointF(12360, 0));
}

TEST(PlaceOnNoScreen, begins_right_behind_the_last_twip_of_the_screen) {
    EXPECT_EQ(képernyőre({15360, 0}, window, {main_screen}), QPointF(12360, 0));
    EXPECT_EQ(képernyőre({0, 11520}, window, {main_screen}), QPointF(0, 7520));
}

TEST(PlaceOnNoScreen, is_moved_to_the_nearest_of_several) {
    EXPECT_EQ(képernyőre({50000, 9000}, window, three_screens), QPointF(41160, 9000));
    EXPECT_EQ(képernyőre({-30000, 0}, window, three_screens), QPointF(-19200, 0));
    EXPECT_EQ(képernyőre({2000, 13000}, window, three_screens), QPointF(2000, 7520));
    EXPECT_EQ(képernyőre({-8000, -8000}, window, three_screens), QPointF(-8000, -3000));
}

TEST(PlaceOnNoScreen, in_the_gap_beside_a_higher_screen_goes_to_the_nearer_one) {
    // Over the right screen: 1400 below lies the right one, 3640 to the left the main one.
    EXPECT_EQ(képernyőre({16000, 100}, window, three_screens), QPointF(16000, 1500));
}

TEST(PlaceOnNoScreen, is_moved_to_the_same_one_whatever_order_the_screens_come_in) {
    QVector<QRectF> reversed = three_screens;
    std::reverse(reversed.begin(), reversed.end());
    for (const QPointF &place : {QPointF(50000, 9000), QPointF(-30000, 0), QPointF(2000, 13000)})
        EXPECT_EQ(képernyőre(place, window, reversed), képernyőre(place, window, three_screens));
}

TEST(PlaceOnNoScreen, is_left_alone_where_there_is_no_screen_at_all) {
    expect_kept({20000, -5}, {});
}

TEST(WholeWindowOnAScreen, is_moved_in_from_each_side_and_kept_inside) {
    EXPECT_EQ(képernyőbe({5000, 5000}, window, main_screen), QPointF(5000, 5000));
    EXPECT_EQ(képernyőbe({15000, 11000}, window, main_screen), QPointF(12360, 7520));
    EXPECT_EQ(képernyőbe({-20000, -20000}, window, left_screen), QPointF(-19200, -3000));
    EXPECT_EQ(képernyőbe({0, 0}, window, right_screen), QPointF(15360, 1500));
}

TEST(WholeWindowOnAScreen, shows_its_top_left_part_when_it_is_larger_than_the_screen) {
    EXPECT_EQ(képernyőbe({5000, 5000}, {20000, 12000}, main_screen), QPointF(0, 0));
    EXPECT_EQ(képernyőbe({-5000, 5000}, {20000, 4000}, left_screen), QPointF(-19200, 5000));
}

}  // namespace
