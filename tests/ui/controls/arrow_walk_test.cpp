#include "ui/controls/arrow_walk.h"

#include <gtest/gtest.h>

#include <array>

namespace {

/// Three rows of three places of the same size, numbered row by row.
QVector<QRect> grid() {
    QVector<QRect> places;
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column)
            places.append(QRect(column * 50, row * 30, 40, 20));
    }
    return places;
}

/// Where the left, right, up and down keys lead.
std::array<int, 4> leads(const QVector<QRect> &places, int from) {
    return {arrow_leads_to(Qt::Key_Left, places, from), arrow_leads_to(Qt::Key_Right, places, from),
            arrow_leads_to(Qt::Key_Up, places, from), arrow_leads_to(Qt::Key_Down, places, from)};
}

/// A place of 10 by 10.
QRect at(int x, int y) {
    return {x, y, 10, 10};
}

TEST(ArrowWalk, goes_one_step_to_the_side_of_the_key) {
    EXPECT_EQ(arrow_direction(Qt::Key_Left), QPoint(-1, 0));
    EXPECT_EQ(arrow_direction(Qt::Key_Right), QPoint(1, 0));
    EXPECT_EQ(arrow_direction(Qt::Key_Up), QPoint(0, -1));
    EXPECT_EQ(arrow_direction(Qt::Key_Down), QPoint(0, 1));
}

TEST(ArrowWalk, goes_nowhere_with_another_key) {
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Tab, Qt::Key_Home, Qt::Key_End, Qt::Key_PageUp,
                              Qt::Key_A, Qt::Key_4, Qt::Key_Escape}) {
        EXPECT_TRUE(arrow_direction(key).isNull()) << key;
        EXPECT_EQ(arrow_leads_to(key, grid(), 4), -1) << key;
    }
}

TEST(ArrowWalk, leads_to_the_neighbour_in_a_grid) {
    const std::array<int, 4> expected[] = {{-1, 1, -1, 3}, {0, 2, -1, 4},  {1, -1, -1, 5}, {-1, 4, 0, 6}, {3, 5, 1, 7},
                                           {4, -1, 2, 8},  {-1, 7, 3, -1}, {6, 8, 4, -1},  {7, -1, 5, -1}};
    for (int from = 0; from < 9; ++from)
        EXPECT_EQ(leads(grid(), from), expected[from]) << from;
}

TEST(ArrowWalk, leads_past_an_empty_place) {
    const QVector<QRect> row{at(0, 0), QRect(), QRect(), at(60, 0), at(80, 0)};

    EXPECT_EQ(arrow_leads_to(Qt::Key_Right, row, 0), 3);
    EXPECT_EQ(arrow_leads_to(Qt::Key_Left, row, 3), 0);
}

TEST(ArrowWalk, never_leads_to_an_empty_place) {
    // Even one that lies somewhere.
    const QVector<QRect> row{at(0, 0), QRect(20, 0, 0, 0), QRect(40, 0, 10, 0)};

    EXPECT_EQ(arrow_leads_to(Qt::Key_Right, row, 0), -1);
}

TEST(ArrowWalk, leads_to_another_row_when_all_ahead_are_empty) {
    QVector<QRect> places = grid();
    places[1] = places[2] = QRect();

    EXPECT_EQ(arrow_leads_to(Qt::Key_Right, places, 0), 4);
}

TEST(ArrowWalk, prefers_what_lies_straight_ahead_to_what_lies_nearer_aside) {
    const QVector<QRect> places{at(0, 100), at(70, 100), at(40, 60), at(40, 140)};

    EXPECT_EQ(arrow_leads_to(Qt::Key_Right, places, 0), 1);
}

TEST(ArrowWalk, prefers_what_lies_a_little_aside_to_what_lies_far_ahead) {
    const QVector<QRect> places{at(0, 100), at(300, 100), at(40, 105)};

    EXPECT_EQ(arrow_leads_to(Qt::Key_Right, places, 0), 2);
}

TEST(ArrowWalk, leads_to_scattered_places_on_the_side_of_the_key) {
    //  3 . . . .
    //  . . . 1 .
    //  . . 0 . .
    //  . 4 . . .
    //  . . . . 2
    const QVector<QRect> places{at(200, 200), at(300, 100), at(400, 400), at(0, 0), at(100, 300)};

    EXPECT_EQ(leads(places, 0), (std::array<int, 4>{4, 1, 1, 4}));
    EXPECT_EQ(leads(places, 3), (std::array<int, 4>{-1, 1, -1, 4}));
    EXPECT_EQ(arrow_leads_to(Qt::Key_Right, places, 2), -1);
    EXPECT_EQ(arrow_leads_to(Qt::Key_Down, places, 2), -1);
}

TEST(ArrowWalk, measures_between_the_middles) {
    // The wide place begins further left than the place it is seen from, but its middle lies further right.
    const QVector<QRect> places{QRect(100, 0, 10, 10), QRect(0, 20, 400, 10)};

    EXPECT_EQ(leads(places, 0), (std::array<int, 4>{-1, 1, -1, 1}));
}

TEST(ArrowWalk, leads_nowhere_sideways_in_a_column) {
    const QVector<QRect> column{at(50, 0), at(50, 40), at(50, 80)};

    EXPECT_EQ(leads(column, 1), (std::array<int, 4>{-1, -1, 0, 2}));
}

TEST(ArrowWalk, leads_nowhere_from_the_only_place) {
    EXPECT_EQ(leads({at(30, 30)}, 0), (std::array<int, 4>{-1, -1, -1, -1}));
}

TEST(ArrowWalk, stays_among_places_on_each_other) {
    EXPECT_EQ(leads({at(30, 30), at(30, 30)}, 0), (std::array<int, 4>{-1, -1, -1, -1}));
}

}  // namespace
