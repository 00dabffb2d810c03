#include <gtest/gtest.h>

#include <QSet>

#include "exercises/letter_puzzle/letter_puzzle.h"
#include "exercises/letter_puzzle/letter_tiles.h"
#include "support/headwords.h"
#include "support/letters.h"
#include "support/printing.h"
#include "support/scripted_random.h"
#include "support/seeded_random.h"

using namespace Qt::StringLiterals;

namespace {

/// About the size of a tile in the puzzle's window: wider for a letter of several characters.
QSizeF measured(const QString &letter, int points) {
    return QSizeF(static_cast<double>(9 + 9 * letter.size()), 26) * points;
}

/// Every tile a hundred wide and a hundred high.
QSizeF hundred_each(const QString &, int) {
    return {100, 100};
}

bool overlap(const QRectF &one, const QRectF &other) {
    return one.left() < other.right() && other.left() < one.right() && one.top() < other.bottom() &&
           other.top() < one.bottom();
}

void expect_no_overlap(const betűlapok &tiles) {
    for (int i = 0; i < tiles.lapok().size(); ++i) {
        for (int other = 0; other < i; ++other)
            ASSERT_FALSE(overlap(tiles.lapok()[i].hely, tiles.lapok()[other].hely)) << other << " and " << i;
    }
}

/// In twips: what a sum of widths may be off.
constexpr double rounding = 0.001;

void expect_all_inside(const betűlapok &tiles, const QSizeF &frame) {
    for (const betűlapok::lap &one : tiles.lapok()) {
        ASSERT_GE(one.hely.left(), 0);
        ASSERT_GE(one.hely.top(), 0);
        ASSERT_LE(one.hely.right(), frame.width() + rounding);
        ASSERT_LE(one.hely.bottom(), frame.height());
    }
}

QStringList letters_on(const betűlapok &tiles) {
    QStringList found;
    for (const betűlapok::lap &one : tiles.lapok())
        found.append(one.betű);
    return found;
}

TEST(LetterTilesOfManyLetters, of_real_words_never_overlap_nor_leave_the_frame) {
    constexpr QSizeF frame(8000, 3000);
    const QStringList words = real_headwords("ma.txt", 10000);
    ASSERT_EQ(words.size(), 10000);
    SeededRandom seeded;
    for (const QString &word : words) {
        SCOPED_TRACE(word.toStdString());
        kirakójáték puzzle({{u"word"_s, word}}, seeded);
        ASSERT_TRUE(puzzle.következő(irány::angolról));
        CountingRandom random(seeded);
        QSet<int> tried;
        const auto measure = [&tried](const QString &letter, int points) {
            tried.insert(points);
            return measured(letter, points);
        };
        betűlapok tiles(frame);

        const int points = tiles.kirak(puzzle.betűk(), measure, 21, 7, random);

        EXPECT_EQ(letters_on(tiles), puzzle.betűk());
        EXPECT_EQ(tiles.lapok()[0].hely.size(), measured(puzzle.betűk()[0], points));
        // Two numbers a draw, and where the tiles stand in rows, one for each but the first.
        const auto count = static_cast<int>(tiles.lapok().size());
        EXPECT_LE(random.drawn, 2 * betűlapok::legtöbb_húzás * count * static_cast<int>(tried.size()) + count - 1);
        expect_no_overlap(tiles);
        expect_all_inside(tiles, frame);
        if (testing::Test::HasFailure())
            break;
    }
}

TEST(LetterTilesOfManyLetters, lie_all_over_the_frame) {
    constexpr QSizeF frame(8000, 3000);
    SeededRandom random;
    int quarters[4]{};
    for (int round = 0; round < 500; ++round) {
        betűlapok tiles(frame);
        tiles.kirak(plain_letters(4), measured, 21, 7, random);
        for (const betűlapok::lap &one : tiles.lapok()) {
            const QPointF middle = one.hely.center();
            ++quarters[(middle.x() < frame.width() / 2 ? 0 : 1) + (middle.y() < frame.height() / 2 ? 0 : 2)];
        }
    }

    for (const int tiles_in_it : quarters)
        EXPECT_NEAR(tiles_in_it, 500, 100);
}

TEST(LetterTilesOfManyLetters, stand_in_rows_when_they_would_not_fit_into_one) {
    // Two of a hundred in a row of 250. The draws leave the order as it is: 0.99 of n is the last one.
    ScriptedRandom random({0.99, 0.99, 0.99, 0.99});
    betűlapok tiles({250, 600});

    const int points = tiles.kirak(plain_letters(5), hundred_each, 7, 7, random);

    EXPECT_EQ(points, 7);
    const QPointF expected[] = {{0, 0}, {100, 0}, {0, 100}, {100, 100}, {0, 200}};
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(tiles.lapok()[i].hely, QRectF(expected[i], QSizeF(100, 100))) << i;
    EXPECT_EQ(random.left(), 0U);
}

TEST(LetterTilesOfManyLetters, stand_in_rows_in_random_order) {
    QSet<QString> orders;
    for (unsigned seed = 0; seed < 200; ++seed) {
        SeededRandom random(seed);
        betűlapok tiles({250, 200});
        tiles.kirak(plain_letters(3), hundred_each, 7, 7, random);
        QString order(3, u' ');
        for (const betűlapok::lap &one : tiles.lapok())
            order[static_cast<int>(one.hely.left() / 100 + one.hely.top() / 100 * 2)] = one.betű[0];
        orders.insert(order);
    }

    EXPECT_EQ(orders, QSet<QString>({u"abc"_s, u"acb"_s, u"bac"_s, u"bca"_s, u"cab"_s, u"cba"_s}));
}

TEST(LetterTilesOfManyLetters, cover_part_of_the_row_before_when_the_frame_has_too_little_height) {
    ScriptedRandom random({0.99, 0.99, 0.99, 0.99});
    betűlapok tiles({250, 200});

    tiles.kirak(plain_letters(5), hundred_each, 7, 7, random);

    // Three rows of a hundred in two hundred: fifty apart.
    const double tops[] = {0, 0, 50, 50, 100};
    for (int i = 0; i < 5; ++i)
        EXPECT_DOUBLE_EQ(tiles.lapok()[i].hely.top(), tops[i]) << i;
}

TEST(LetterTilesOfManyLetters, of_sixty_letters_stand_in_rows_without_overlap) {
    // With seven points, 126 by 182: twenty-three in a row of 3000, so in three rows of 546.
    constexpr QSizeF frame(3000, 600);
    SeededRandom random;
    betűlapok tiles(frame);

    const int points = tiles.kirak(plain_letters(60), measured, 21, 7, random);

    EXPECT_EQ(points, 7);
    EXPECT_EQ(letters_on(tiles), plain_letters(60));
    expect_no_overlap(tiles);
    expect_all_inside(tiles, frame);
}

TEST(LetterTilesOfManyLetters, of_a_thousand_letters_stay_inside_a_tiny_frame) {
    constexpr QSizeF frame(300, 200);
    SeededRandom seeded;
    CountingRandom random(seeded);
    betűlapok tiles(frame);

    const int points = tiles.kirak(plain_letters(1000), measured, 21, 7, random);

    EXPECT_EQ(points, 7);
    EXPECT_EQ(tiles.lapok().size(), 1000);
    expect_all_inside(tiles, frame);
    // Nothing is tried where the row is too long; only the order is drawn.
    EXPECT_EQ(random.drawn, 999);
}

TEST(LetterTilesOfManyLetters, larger_than_the_frame_lie_at_its_corner) {
    SeededRandom random;
    betűlapok tiles({50, 60});

    tiles.kirak(plain_letters(3), hundred_each, 7, 7, random);

    for (const betűlapok::lap &one : tiles.lapok())
        EXPECT_EQ(one.hely.topLeft(), QPointF(0, 0));
}

TEST(LetterTilesOfManyLetters, longer_than_the_frame_close_up_from_side_to_side_and_cover_each_other) {
    // Three hundred in 250, and no room for a second row.
    constexpr QSizeF frame(250, 150);
    SeededRandom random;
    betűlapok tiles(frame);
    tiles.kirak(plain_letters(3), hundred_each, 7, 7, random);
    tiles.mozgat(0, {150, 50});
    tiles.mozgat(1, {75, 20});
    tiles.mozgat(2, {20, 30});

    EXPECT_EQ(tiles.kirakott_szó(), u"cba"_s);

    expect_all_inside(tiles, frame);
    const QRectF &first = tiles.lapok()[2].hely;
    const QRectF &second = tiles.lapok()[1].hely;
    const QRectF &third = tiles.lapok()[0].hely;
    EXPECT_EQ(first.topLeft(), QPointF(0, 30));
    EXPECT_NEAR(third.right(), 250, rounding);
    EXPECT_TRUE(first.left() < second.left() && second.left() < third.left());
    EXPECT_EQ(second.top(), 30);
    EXPECT_EQ(third.top(), 30);
}

TEST(LetterTilesOfManyLetters, close_up_to_rows_in_the_order_of_reading) {
    constexpr QSizeF frame(250, 600);
    SeededRandom random;
    betűlapok tiles(frame);
    tiles.kirak(plain_letters(5), hundred_each, 7, 7, random);
    const QPointF laid[] = {{20, 420}, {130, 350}, {10, 330}, {0, 490}, {140, 310}};
    for (int i = 0; i < 5; ++i)
        tiles.mozgat(i, laid[i]);

    EXPECT_EQ(tiles.kirakott_szó(), u"cbead"_s);

    // From the top of the first one on, but no further down than three rows reach.
    const QPointF closed[] = {{100, 400}, {100, 300}, {0, 300}, {0, 500}, {0, 400}};
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(tiles.lapok()[i].hely.topLeft(), closed[i]) << i;
    EXPECT_EQ(tiles.kirakott_szó(), u"cbead"_s);
}

TEST(LetterTilesOfManyLetters, are_as_large_as_rows_allow_with_room_for_the_word_below) {
    constexpr QSizeF frame(12000, 4500);
    for (const int count : {50, 86, 200}) {
        SeededRandom random;
        betűlapok tiles(frame);

        const int points = tiles.kirak(plain_letters(count), measured, 40, 7, random, 40);

        double lowest = 0;
        for (const betűlapok::lap &one : tiles.lapok())
            lowest = std::max(lowest, one.hely.bottom());
        const double height = measured(u"a"_s, points).height();
        EXPECT_LE(lowest * 2 + height, frame.height()) << count;
        const auto in_row = [&](int at) { return static_cast<int>(frame.width() / measured(u"a"_s, at).width()); };
        const int rows_of_larger = (count + in_row(points + 1) - 1) / in_row(points + 1);
        EXPECT_TRUE(points == 40 || (2 * rows_of_larger + 1) * measured(u"a"_s, points + 1).height() > frame.height())
            << count << ' ' << points;
        // In one row they would have this size.
        EXPECT_GE(points, 2 * static_cast<int>(frame.width() / count / 18)) << count;
        expect_no_overlap(tiles);
        expect_all_inside(tiles, frame);
    }
}

TEST(LetterTilesOfManyLetters, longer_than_the_frame_make_the_same_word_when_they_are_closed_up_again) {
    constexpr QSizeF frame(300, 200);
    SeededRandom random;
    betűlapok tiles(frame);
    tiles.kirak(plain_letters(60), measured, 21, 7, random);

    const QString word = tiles.kirakott_szó();

    EXPECT_EQ(tiles.kirakott_szó(), word);
    expect_all_inside(tiles, frame);
}

}  // namespace
