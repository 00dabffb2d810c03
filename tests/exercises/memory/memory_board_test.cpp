#include "exercises/memory/memory_board.h"

#include <gtest/gtest.h>

namespace {

/// What is on each board: cards of 1695 by 855, 120 apart, the first one at 120, 600.
struct Board {
    int columns, in_column, cards, pairs;
    /// Of the last card, in the lower right corner.
    double last_left, last_top;
    /// Of the progress: its right edge is the last card's, and it lies 120 below it.
    double progress_left, progress_top;
    /// Of the task: from the left edge of the first card to the right edge of the last one.
    double task_width;
};

constexpr Board boards[] = {
    {3, 4, 12, 6, 3750, 3525, 4710, 4500, 5325},  {4, 4, 16, 8, 5565, 3525, 6525, 4500, 7140},
    {4, 5, 20, 10, 5565, 4500, 6525, 5475, 7140}, {4, 6, 24, 12, 5565, 5475, 6525, 6450, 7140},
    {5, 6, 30, 15, 7380, 5475, 8340, 6450, 8955}, {6, 6, 36, 18, 9195, 5475, 10155, 6450, 10770},
};

constexpr double lefts_of_columns[] = {120, 1935, 3750, 5565, 7380, 9195};
constexpr double tops_of_rows[] = {600, 1575, 2550, 3525, 4500, 5475};

TEST(MemoryBoard, has_the_six_sizes_to_choose_from) {
    ASSERT_EQ(játékterek.size(), std::size(boards));
    for (size_t i = 0; i < játékterek.size(); ++i) {
        EXPECT_EQ(játékterek[i].oszlopok, boards[i].columns) << i;
        EXPECT_EQ(játékterek[i].oszlopban, boards[i].in_column) << i;
        EXPECT_EQ(játékterek[i].kártyák(), boards[i].cards) << i;
        EXPECT_EQ(játékterek[i].párok(), boards[i].pairs) << i;
    }
}

TEST(MemoryBoard, is_the_largest_one_up_to_the_chosen_for_which_the_pairs_are_enough) {
    const struct {
        int chosen, pairs, board;
    } cases[] = {{5, 100, 5}, {5, 18, 5}, {5, 17, 4}, {5, 15, 4}, {5, 14, 3}, {5, 12, 3},  {5, 11, 2},  {5, 10, 2},
                 {5, 9, 1},   {5, 8, 1},  {5, 7, 0},  {5, 6, 0},  {5, 0, 0},  {4, 100, 4}, {4, 14, 3},  {3, 12, 3},
                 {3, 11, 2},  {2, 18, 2}, {2, 10, 2}, {2, 9, 1},  {1, 8, 1},  {1, 7, 0},   {0, 100, 0}, {0, 5, 0}};
    for (const auto &[chosen, pairs, board] : cases)
        EXPECT_EQ(legnagyobb_játéktér(chosen, pairs), board) << chosen << " for " << pairs;
}

TEST(MemoryBoard, has_its_cards_column_by_column) {
    for (const Board &board : boards) {
        const QVector<QRectF> cards = kártyákat_elhelyez({board.columns, board.in_column}).kártyák;
        ASSERT_EQ(cards.size(), board.cards);

        int card = 0;
        for (int column = 0; column < board.columns; ++column) {
            for (int row = 0; row < board.in_column; ++row) {
                EXPECT_EQ(cards[card], QRectF(lefts_of_columns[column], tops_of_rows[row], 1695, 855))
                    << card << " of " << board.cards;
                ++card;
            }
        }
    }
}

TEST(MemoryBoard, has_its_corners_and_labels_at_these_places) {
    for (const Board &board : boards) {
        SCOPED_TRACE(board.cards);
        const kártyahelyek places = kártyákat_elhelyez({board.columns, board.in_column});

        EXPECT_EQ(places.kártyák.front(), QRectF(120, 600, 1695, 855));
        EXPECT_EQ(places.kártyák[board.in_column - 1].topLeft(), QPointF(120, board.last_top));
        EXPECT_EQ(places.kártyák[board.cards - board.in_column].topLeft(), QPointF(board.last_left, 600));
        EXPECT_EQ(places.kártyák.back(), QRectF(board.last_left, board.last_top, 1695, 855));
        EXPECT_EQ(places.Label_info, QRectF(board.progress_left, board.progress_top, 735, 495));
        EXPECT_EQ(places.Label_feladat, QRectF(120, 0, board.task_width, 495));
    }
}

TEST(MemoryBoard, begins_each_column_at_the_top) {
    const QVector<QRectF> cards = kártyákat_elhelyez({4, 5}).kártyák;

    EXPECT_EQ(cards[0].topLeft(), QPointF(120, 600));
    EXPECT_EQ(cards[4].topLeft(), QPointF(120, 4500));
    EXPECT_EQ(cards[5].topLeft(), QPointF(1935, 600));
    EXPECT_EQ(cards[10].topLeft(), QPointF(3750, 600));
    EXPECT_EQ(cards[15].topLeft(), QPointF(5565, 600));
    EXPECT_EQ(cards[19].topLeft(), QPointF(5565, 4500));
}

}  // namespace
