#include "exercises/letter_puzzle/letter_tiles.h"

#include <gtest/gtest.h>

#include "support/letters.h"
#include "support/printing.h"
#include "support/scripted_random.h"
#include "support/seeded_random.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QSizeF frame(1000, 500);
constexpr QSizeF tile(200, 100);
constexpr int size = 10;

/// Every tile as large as `tile`, whatever its letter and the points.
QSizeF always_the_same(const QString &, int) {
    return tile;
}

/// A hundred wide for each character of the letter.
QSizeF by_characters(const QString &letter, int) {
    return {100.0 * static_cast<double>(letter.size()), 100};
}

/// Ten wide and ten high for each point.
QSizeF by_points(const QString &, int points) {
    return {10.0 * points, 10.0 * points};
}

QString places(const betűlapok &tiles) {
    QStringList made;
    for (const betűlapok::lap &one : tiles.lapok())
        made.append(one.betű + u" %1,%2"_s.arg(one.hely.left()).arg(one.hely.top()));
    return made.join(u"; "_s);
}

/// Tiles with their top left corners at these places.
betűlapok laid_out(const QSizeF &in_frame, const QStringList &with_letters, const betűlapok::mérő &measure,
                   const QVector<QPointF> &at) {
    betűlapok tiles(in_frame);
    SeededRandom random;
    tiles.kirak(with_letters, measure, size, size, random);
    for (int i = 0; i < at.size(); ++i)
        tiles.mozgat(i, at[i]);
    return tiles;
}

TEST(LetterTiles, have_one_tile_for_each_letter_in_the_measured_size) {
    betűlapok tiles(frame);
    SeededRandom random;

    const int points = tiles.kirak({u"sz"_s, u"ő"_s}, by_characters, size, size, random);

    EXPECT_EQ(points, size);
    ASSERT_EQ(tiles.lapok().size(), 2);
    EXPECT_EQ(tiles.lapok()[0].betű, u"sz"_s);
    EXPECT_EQ(tiles.lapok()[0].hely.size(), QSizeF(200, 100));
    EXPECT_EQ(tiles.lapok()[1].betű, u"ő"_s);
    EXPECT_EQ(tiles.lapok()[1].hely.size(), QSizeF(100, 100));
}

TEST(LetterTiles, lie_at_the_whole_part_of_a_draw_of_the_room_that_a_tile_leaves) {
    // The room is 1000 - 200 = 800 wide and 500 - 100 = 400 high.
    const struct {
        double across, down;
        const char16_t *place;
    } cases[] = {{0, 0, u"a 0,0"},
                 {0.5, 0.25, u"a 400,100"},
                 {0.25, 0.5, u"a 200,200"},
                 {0.333, 0.333, u"a 266,133"},
                 {0.999, 0.999, u"a 799,399"},
                 {0.0012, 0.0026, u"a 0,1"}};
    for (const auto &[across, down, place] : cases) {
        betűlapok tiles(frame);
        ScriptedRandom random({across, down});

        tiles.kirak(plain_letters(1), always_the_same, size, size, random);

        EXPECT_EQ(places(tiles), QString::fromUtf16(place));
    }
}

TEST(LetterTiles, have_their_room_by_the_size_of_each) {
    betűlapok tiles(frame);
    // Room: 800 by 400 for "sz", 900 by 400 for "ő".
    ScriptedRandom random({0.5, 0.5, 0.9, 0.5});

    tiles.kirak({u"sz"_s, u"ő"_s}, by_characters, size, size, random);

    EXPECT_EQ(places(tiles), u"sz 400,200; ő 810,200"_s);
}

TEST(LetterTiles, are_drawn_again_until_they_overlap_none_before) {
    betűlapok tiles(frame);
    // a: 400,200. b: the same place, then 201,200, which reaches one beyond 400, then 400,101, then 0,0.
    ScriptedRandom random({0.5, 0.5, 0.5, 0.5, 0.2513, 0.5, 0.5, 0.2526, 0, 0});

    const int points = tiles.kirak(plain_letters(2), always_the_same, size, size, random);

    EXPECT_EQ(places(tiles), u"a 400,200; b 0,0"_s);
    EXPECT_EQ(points, size);
    EXPECT_EQ(random.left(), 0U);
}

TEST(LetterTiles, may_touch_each_other_on_every_side) {
    betűlapok tiles(frame);
    // a: 400,200; then left of it, right of it, above and below.
    ScriptedRandom random({0.5, 0.5, 0.25, 0.5, 0.75, 0.5, 0.5, 0.25, 0.5, 0.75});

    tiles.kirak(plain_letters(5), always_the_same, size, size, random);

    EXPECT_EQ(places(tiles), u"a 400,200; b 200,200; c 600,200; d 400,100; e 400,300"_s);
    EXPECT_EQ(random.left(), 0U);
}

TEST(LetterTiles, replace_those_of_the_word_before) {
    betűlapok tiles(frame);
    SeededRandom random;
    tiles.kirak(plain_letters(5), always_the_same, size, size, random);

    tiles.kirak({u"x"_s}, always_the_same, size, size, random);

    ASSERT_EQ(tiles.lapok().size(), 1);
    EXPECT_EQ(tiles.lapok()[0].betű, u"x"_s);
}

TEST(LetterTiles, keep_the_large_letters_while_they_fit_into_one_row) {
    SeededRandom random;

    // Five letters of a hundred each.
    EXPECT_EQ(betűlapok({500, 2000}).kirak(plain_letters(5), by_points, 10, 5, random), 10);
}

TEST(LetterTiles, have_smaller_letters_when_they_would_not_fit_into_one_row) {
    SeededRandom random;
    const struct {
        double width;
        int points;
    } cases[] = {{499, 9}, {450, 9}, {449, 8}, {400, 8}, {399, 7}, {300, 6}, {260, 5}};

    for (const auto &[width, points] : cases) {
        betűlapok tiles({width, 2000});
        EXPECT_EQ(tiles.kirak(plain_letters(5), by_points, 10, 5, random), points) << width;
        EXPECT_EQ(tiles.lapok()[4].hely.size(), QSizeF(10 * points, 10 * points)) << width;
    }
}

TEST(LetterTiles, shrink_by_a_tenth_of_the_points_each_time) {
    QList<int> tried;
    const auto measure = [&](const QString &, int points) {
        tried.append(points);
        return QSizeF(1001, 100);
    };
    SeededRandom random;

    const int points = betűlapok(frame).kirak(plain_letters(1), measure, 30, 20, random);

    EXPECT_EQ(tried.first(5), QList<int>({30, 27, 24, 21, 20}));
    EXPECT_EQ(points, 20);
}

TEST(LetterTiles, have_smaller_letters_when_one_is_higher_than_the_frame) {
    betűlapok tiles({1000, 55});
    SeededRandom random;

    EXPECT_EQ(tiles.kirak(plain_letters(2), by_points, 10, 3, random), 5);
    EXPECT_LE(tiles.lapok()[0].hely.bottom(), 55);
}

TEST(LetterTiles, have_smaller_letters_when_no_place_is_found_for_one_in_the_draws_there_are) {
    // The first tile lies in the middle and leaves no room for another one of ten points.
    std::vector<double> numbers{0.5, 0};
    for (int draw = 0; draw < betűlapok::legtöbb_húzás; ++draw)
        numbers.insert(numbers.end(), {0.0, 0.0});
    // With nine points there is room for both: 90 of 201.
    numbers.insert(numbers.end(), {0.0, 0.0, 0.9, 0.0});
    ScriptedRandom random(numbers);
    betűlapok tiles({201, 100});

    const int points = tiles.kirak(plain_letters(2), by_points, 10, 5, random);

    EXPECT_EQ(points, 9);
    // 0.9 of 201 - 90.
    EXPECT_EQ(places(tiles), u"a 0,0; b 99,0"_s);
    EXPECT_EQ(random.left(), 0U);
}

TEST(LetterTiles, stand_in_rows_when_no_place_is_found_even_for_the_smallest) {
    // With 10, 9 and 8 points, a place for the first tile and 200 that are taken for the second; then the order.
    ScriptedRandom random(std::vector<double>(3 * (2 + 2 * 200) + 1, 0.0));
    betűlapok tiles({300, 300});

    const int points = tiles.kirak(plain_letters(2), by_points, 10, 8, random);

    // In a row there is room even for the large ones, and below it for the word.
    EXPECT_EQ(points, 10);
    EXPECT_EQ(places(tiles), u"a 100,0; b 0,0"_s);
    EXPECT_EQ(random.left(), 0U);
}

TEST(LetterTiles, of_no_letters_are_none) {
    ScriptedRandom random({});
    betűlapok tiles(frame);

    EXPECT_EQ(tiles.kirak({}, always_the_same, 10, 5, random), 10);

    EXPECT_TRUE(tiles.lapok().isEmpty());
    EXPECT_EQ(tiles.kirakott_szó(), QString());
}

TEST(LetterTiles, move_to_where_they_are_put) {
    betűlapok tiles = laid_out(frame, plain_letters(2), always_the_same, {{0, 0}, {500, 300}});

    tiles.mozgat(0, {310, 20.5});

    EXPECT_EQ(places(tiles), u"a 310,20.5; b 500,300"_s);
    EXPECT_EQ(tiles.lapok()[0].hely.size(), tile);
}

TEST(LetterTiles, may_be_put_on_each_other) {
    betűlapok tiles = laid_out(frame, plain_letters(2), always_the_same, {{0, 0}, {500, 300}});

    tiles.mozgat(0, {500, 300});

    EXPECT_EQ(places(tiles), u"a 500,300; b 500,300"_s);
}

TEST(LetterTiles, never_leave_the_frame_on_any_side) {
    const struct {
        QPointF to;
        const char16_t *place;
    } cases[] = {{{-1, 200}, u"a 0,200"},     {{-5000, 200}, u"a 0,200"}, {{801, 200}, u"a 800,200"},
                 {{5000, 200}, u"a 800,200"}, {{300, -1}, u"a 300,0"},    {{300, 401}, u"a 300,400"},
                 {{-1, -1}, u"a 0,0"},        {{999, 499}, u"a 800,400"}, {{800, 400}, u"a 800,400"}};
    for (const auto &[to, place] : cases) {
        betűlapok tiles = laid_out(frame, plain_letters(1), always_the_same, {{100, 100}});

        tiles.mozgat(0, to);

        EXPECT_EQ(places(tiles), QString::fromUtf16(place));
    }
}

TEST(LetterTiles, that_are_larger_than_the_frame_stay_in_its_corner) {
    betűlapok tiles = laid_out({150, 80}, plain_letters(1), always_the_same, {});

    for (const QPointF &to : {QPointF(10, 10), QPointF(-60, -30), QPointF(300, 300)}) {
        tiles.mozgat(0, to);
        EXPECT_EQ(places(tiles), u"a 0,0"_s);
    }
}

TEST(LetterTiles, close_up_to_the_word_in_the_order_of_their_left_edges) {
    betűlapok tiles = laid_out(frame, {u"ő"_s, u"l"_s, u"ő"_s, u"sz"_s}, by_characters,
                               {{400, 300}, {650, 0}, {900, 400}, {30, 200}});

    EXPECT_EQ(tiles.kirakott_szó(), u"szőlő"_s);

    EXPECT_EQ(places(tiles), u"ő 230,200; l 330,200; ő 430,200; sz 30,200"_s);
}

TEST(LetterTiles, close_up_by_their_left_edges_and_not_by_their_middles) {
    betűlapok tiles = laid_out(frame, {u"e"_s, u"dzs"_s}, by_characters, {{101, 0}, {100, 0}});

    EXPECT_EQ(tiles.kirakott_szó(), u"dzse"_s);
}

TEST(LetterTiles, with_equal_left_edges_keep_their_order) {
    betűlapok tiles = laid_out(frame, plain_letters(3), by_characters, {{300, 0}, {300, 200}, {300, 100}});

    EXPECT_EQ(tiles.kirakott_szó(), u"abc"_s);

    EXPECT_EQ(places(tiles), u"a 300,0; b 400,0; c 500,0"_s);
}

TEST(LetterTiles, keep_their_order_among_many_with_equal_left_edges) {
    const QVector<QPointF> at(40, QPointF(0, 0));
    betűlapok tiles = laid_out({5000, 3000}, plain_letters(40), by_characters, at);

    EXPECT_EQ(tiles.kirakott_szó(), plain_letters(40).join(QString()));
}

TEST(LetterTiles, close_up_further_left_when_the_row_would_leave_the_frame) {
    // Three hundred wide together, so the row begins at 700 at most.
    betűlapok tiles = laid_out(frame, plain_letters(3), by_characters, {{900, 10}, {880, 20}, {750, 30}});

    EXPECT_EQ(tiles.kirakott_szó(), u"cba"_s);

    EXPECT_EQ(places(tiles), u"a 900,30; b 800,30; c 700,30"_s);
}

TEST(LetterTiles, close_up_where_they_lie_when_the_row_just_fits) {
    betűlapok tiles = laid_out(frame, plain_letters(3), by_characters, {{700, 10}, {750, 20}, {760, 30}});

    EXPECT_EQ(tiles.kirakott_szó(), u"abc"_s);

    EXPECT_EQ(places(tiles), u"a 700,10; b 800,10; c 900,10"_s);
}

TEST(LetterTiles, stay_where_they_are_when_they_are_closed_up_again) {
    betűlapok tiles = laid_out(frame, plain_letters(3), by_characters, {{900, 10}, {880, 20}, {750, 30}});
    const QString word = tiles.kirakott_szó();
    const QString closed_up = places(tiles);

    EXPECT_EQ(tiles.kirakott_szó(), word);
    EXPECT_EQ(places(tiles), closed_up);
}

}  // namespace
