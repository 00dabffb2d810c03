#include <gtest/gtest.h>

#include "exercises/letter_puzzle/letter_tiles.h"
#include "support/letters.h"
#include "support/printing.h"
#include "support/seeded_random.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QSizeF frame(1000, 500);

QSizeF by_characters(const QString &letter, int) {
    return {100.0 * static_cast<double>(letter.size()), 100};
}

class LetterTyping : public testing::Test {
  protected:
    void lay_out(const QStringList &letters, const QSizeF &in_frame = frame) {
        tiles_ = betűlapok(in_frame);
        tiles_.kirak(letters, by_characters, 10, 10, random_);
    }
    /// Types each character; the tiles that were taken, with a blank between two.
    QString type(const QString &text) {
        QStringList taken;
        for (const QChar one : text)
            taken.append(QString::number(tiles_.gépel(one)));
        return taken.join(u' ');
    }

    SeededRandom random_;
    betűlapok tiles_{frame};
};

TEST_F(LetterTyping, lays_the_word_at_the_foot_of_the_frame) {
    lay_out({u"c"_s, u"a"_s, u"t"_s});

    EXPECT_EQ(type(u"cat"_s), u"0 1 2"_s);

    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(tiles_.lapok()[i].hely.topLeft(), QPointF(100 * i, 400)) << i;
    EXPECT_EQ(tiles_.kirakott_szó(), u"cat"_s);
}

TEST_F(LetterTyping, takes_each_tile_once_and_none_for_a_letter_that_is_not_there) {
    lay_out({u"o"_s, u"x"_s, u"o"_s});

    EXPECT_EQ(type(u"oqoo"_s), u"0 -1 2 -1"_s);
}

TEST_F(LetterTyping, takes_a_letter_of_several_characters_by_all_of_its_keys) {
    lay_out({u"sz"_s, u"ő"_s, u"l"_s, u"ő"_s});

    EXPECT_EQ(type(u"szőlő"_s), u"0 0 1 2 3"_s);
    EXPECT_EQ(tiles_.kirakott_szó(), u"szőlő"_s);
}

TEST_F(LetterTyping, exchanges_a_letter_that_goes_on_to_be_a_longer_one) {
    lay_out({u"s"_s, u"sz"_s, u"á"_s});

    EXPECT_EQ(type(u"szás"_s), u"0 1 2 0"_s);
    EXPECT_EQ(tiles_.kirakott_szó(), u"szás"_s);
}

TEST_F(LetterTyping, takes_a_capital_for_a_small_letter_when_there_is_no_other) {
    lay_out({u"D"_s, u"u"_s, u"n"_s, u"a"_s});
    EXPECT_EQ(type(u"duna"_s), u"0 1 2 3"_s);

    lay_out({u"A"_s, u"a"_s});
    EXPECT_EQ(type(u"aa"_s), u"1 0"_s);
}

TEST_F(LetterTyping, puts_the_last_one_back_where_it_was) {
    lay_out({u"o"_s, u"x"_s});
    tiles_.mozgat(1, {700, 50});
    EXPECT_EQ(tiles_.visszavesz(), -1);
    type(u"ox"_s);

    EXPECT_EQ(tiles_.visszavesz(), 1);

    EXPECT_EQ(tiles_.lapok()[1].hely.topLeft(), QPointF(700, 50));
    EXPECT_EQ(type(u"x"_s), u"1"_s);
}

TEST_F(LetterTyping, moves_free_tiles_away_that_lie_below) {
    lay_out({u"o"_s, u"x"_s});
    tiles_.mozgat(1, {30, 380});

    type(u"o"_s);

    EXPECT_FALSE(tiles_.lapok()[1].hely.intersects(tiles_.lapok()[0].hely));
}

TEST_F(LetterTyping, begins_anew_when_the_tiles_were_closed_up) {
    lay_out({u"o"_s, u"x"_s});
    type(u"ox"_s);
    static_cast<void>(tiles_.kirakott_szó());

    EXPECT_EQ(type(u"xo"_s), u"1 0"_s);
    EXPECT_EQ(tiles_.kirakott_szó(), u"xo"_s);
}

TEST_F(LetterTyping, lays_a_long_word_in_rows_that_are_read_one_after_the_other) {
    // Three hundred in a row: four rows, and as many and one more for the word.
    lay_out(plain_letters(10), {350, 900});
    for (const betűlapok::lap &one : tiles_.lapok())
        ASSERT_LE(one.hely.bottom(), 400);

    type(u"jihgfedcba"_s);

    for (const betűlapok::lap &one : tiles_.lapok())
        EXPECT_GE(one.hely.top(), 400);
    EXPECT_EQ(tiles_.kirakott_szó(), u"jihgfedcba"_s);
}

}  // namespace
