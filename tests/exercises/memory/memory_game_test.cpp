#include "exercises/memory/memory_game.h"

#include <gtest/gtest.h>

#include <QMap>
#include <QSet>
#include <algorithm>
#include <array>

#include "exercises/memory/memory_board.h"
#include "support/printing.h"
#include "support/scripted_random.h"
#include "support/seeded_random.h"
#include "support/word_pairs.h"

using namespace Qt::StringLiterals;

namespace {

using fordulat = memóriajáték::fordulat;

/// The texts on the cards, in their order.
QStringList texts_on(const memóriajáték &game) {
    QStringList texts;
    for (int i = 0; i < game.kártyák(); ++i)
        texts.append(game.szöveg(i));
    return texts;
}

/// The cards with this text.
QVector<int> cards_with(const memóriajáték &game, const char16_t *text) {
    QVector<int> cards;
    for (int i = 0; i < game.kártyák(); ++i) {
        if (game.szöveg(i) == QString::fromUtf16(text))
            cards.append(i);
    }
    return cards;
}

/// A line for each card: "x" when it is turned up, "-" when it is covered, "." when it has been found.
QString seen(const memóriajáték &game) {
    QString line;
    for (int i = 0; i < game.kártyák(); ++i)
        line += !game.játékban(i) ? u'.' : (game.felfedett(i) ? u'x' : u'-');
    return line;
}

/// Four cards of two pairs: szó1, word2, word1, szó2.
class MemoryGame : public testing::Test {
  protected:
    MemoryGame() { game_.kioszt(4); }

    // Pairs 1 and 2 of three, pair 1 once more in between. Card 2 for word1; 2 once more, then 0 for szó1; 0 once more,
    // then 1 for word2; 3 for szó2.
    ScriptedRandom random_{{0.4, 0.5, 0.9, 0.5, 0.6, 0.0, 0.1, 0.3, 0.8}};
    memóriajáték game_{numbered_pairs(3), random_};
};

TEST_F(MemoryGame, draws_pairs_and_cards_until_it_hits_a_free_one) {
    EXPECT_EQ(texts_on(game_), QStringList({u"szó1"_s, u"word2"_s, u"word1"_s, u"szó2"_s}));
    EXPECT_EQ(random_.left(), 0U);
    EXPECT_EQ(random_.reseeds, 1);
}

TEST_F(MemoryGame, begins_with_all_cards_covered) {
    EXPECT_EQ(seen(game_), u"----"_s);
    EXPECT_EQ(game_.felfordított(), 0);
    EXPECT_EQ(game_.állás(), u"0/2"_s);
    EXPECT_FALSE(game_.vége());
}

TEST_F(MemoryGame, turns_the_first_card_up) {
    EXPECT_EQ(game_.felfordít(1), fordulat::első);

    EXPECT_EQ(seen(game_), u"-x--"_s);
    EXPECT_EQ(game_.felfordított(), 1);
}

TEST_F(MemoryGame, does_nothing_when_the_card_is_up_already) {
    game_.felfordít(1);

    EXPECT_EQ(game_.felfordít(1), fordulat::semmi);

    EXPECT_EQ(seen(game_), u"-x--"_s);
    EXPECT_EQ(game_.felfordított(), 1);
}

TEST_F(MemoryGame, finds_a_pair_whichever_card_is_turned_first) {
    const struct {
        int first, second;
        const char16_t *seen;
        std::array<int, 2> pair;
    } cases[] = {{0, 2, u".-.-", {0, 2}}, {2, 0, u".-.-", {0, 2}}, {1, 3, u"-.-.", {1, 3}}, {3, 1, u"-.-.", {1, 3}}};
    for (const auto &one : cases) {
        memóriajáték game = game_;
        game.felfordít(one.first);

        EXPECT_EQ(game.felfordít(one.second), fordulat::pár);

        EXPECT_EQ(seen(game), QString::fromUtf16(one.seen));
        EXPECT_EQ(game.pár(), one.pair);
    }
}

TEST_F(MemoryGame, misses_with_any_two_other_cards) {
    const std::array<int, 2> cases[] = {{0, 1}, {1, 0}, {0, 3}, {3, 0}, {1, 2}, {2, 1}, {2, 3}, {3, 2}};
    for (const auto &[first, second] : cases) {
        memóriajáték game = game_;
        game.felfordít(first);

        EXPECT_EQ(game.felfordít(second), fordulat::tévedés) << first << ' ' << second;

        EXPECT_EQ(seen(game).count(u'x'), 2);
        EXPECT_TRUE(game.felfedett(first));
        EXPECT_TRUE(game.felfedett(second));
        EXPECT_EQ(game.felfordított(), 2);
    }
}

TEST_F(MemoryGame, covers_a_wrong_pair_and_begins_the_next_try) {
    game_.felfordít(0);
    game_.felfordít(1);

    game_.lefed();

    EXPECT_EQ(seen(game_), u"----"_s);
    EXPECT_EQ(game_.felfordított(), 0);
    EXPECT_EQ(game_.állás(), u"0/2"_s);
}

TEST_F(MemoryGame, turns_a_third_card_up_as_the_first_of_the_next_try) {
    game_.felfordít(0);
    game_.felfordít(1);
    game_.lefed();

    EXPECT_EQ(game_.felfordít(3), fordulat::első);

    EXPECT_EQ(seen(game_), u"---x"_s);
    EXPECT_EQ(game_.felfordított(), 1);
    EXPECT_EQ(game_.felfordít(1), fordulat::pár);
}

TEST_F(MemoryGame, covers_a_single_card_too) {
    game_.felfordít(2);

    game_.lefed();

    EXPECT_EQ(seen(game_), u"----"_s);
    EXPECT_EQ(game_.felfordít(2), fordulat::első);
}

TEST_F(MemoryGame, counts_two_cards_as_turned_after_a_found_pair_until_they_are_covered) {
    game_.felfordít(0);
    game_.felfordít(2);
    EXPECT_EQ(game_.felfordított(), 2);
    game_.megtalál();
    EXPECT_EQ(game_.felfordított(), 2);

    game_.lefed();

    EXPECT_EQ(game_.felfordított(), 0);
}

TEST_F(MemoryGame, neither_covers_nor_turns_a_card_that_was_found) {
    game_.felfordít(0);
    game_.felfordít(2);
    game_.lefed();

    for (const int found : {0, 2}) {
        EXPECT_FALSE(game_.játékban(found));
        EXPECT_TRUE(game_.felfedett(found));
        EXPECT_EQ(game_.felfordít(found), fordulat::semmi);
        EXPECT_EQ(game_.felfordított(), 0);
    }
    EXPECT_EQ(seen(game_), u".-.-"_s);
}

TEST_F(MemoryGame, does_not_turn_a_found_card_as_the_second_one) {
    game_.felfordít(0);
    game_.felfordít(2);
    game_.lefed();
    game_.felfordít(1);

    EXPECT_EQ(game_.felfordít(0), fordulat::semmi);

    EXPECT_EQ(game_.felfordított(), 1);
    EXPECT_EQ(game_.felfordít(3), fordulat::pár);
    EXPECT_EQ(game_.pár(), (std::array<int, 2>{1, 3}));
}

TEST_F(MemoryGame, counts_a_found_pair_when_it_is_told_to) {
    game_.felfordít(0);
    game_.felfordít(2);
    EXPECT_EQ(game_.állás(), u"0/2"_s);

    game_.megtalál();
    EXPECT_EQ(game_.állás(), u"1/2"_s);
    EXPECT_FALSE(game_.vége());

    game_.megtalál();
    EXPECT_EQ(game_.állás(), u"2/2"_s);
    EXPECT_TRUE(game_.vége());
}

TEST(MemoryGameOfMany, needs_seven_pairs) {
    SeededRandom random;
    const struct {
        int pairs;
        bool enough;
    } cases[] = {{0, false}, {1, false}, {5, false}, {6, false}, {7, true}, {8, true}, {1000, true}};
    for (const auto &[pairs, enough] : cases) {
        const memóriajáték game(numbered_pairs(pairs), random);

        EXPECT_EQ(game.elég(), enough) << pairs;
        EXPECT_EQ(game.szópárfelső(), pairs - 1);
    }
}

TEST(MemoryGameOfMany, deals_different_pairs_with_each_word_on_one_card) {
    SeededRandom random;
    for (const játéktér &board : játékterek) {
        memóriajáték game(numbered_pairs(20), random);
        for (int round = 0; round < 50; ++round) {
            game.kioszt(board.kártyák());
            ASSERT_EQ(game.kártyák(), board.kártyák());
            const QStringList texts = texts_on(game);
            const QSet<QString> distinct(texts.cbegin(), texts.cend());

            ASSERT_EQ(distinct.size(), board.kártyák());
            ASSERT_EQ(texts.filter(u"word"_s).size(), board.párok());
            for (QString text : texts) {
                if (text.startsWith(u"word"_s)) {
                    ASSERT_TRUE(distinct.contains(text.replace(u"word"_s, u"szó"_s)));
                }
            }
        }
    }
}

TEST(MemoryGameOfMany, deals_every_pair_when_there_are_just_enough) {
    SeededRandom random;
    memóriajáték game(numbered_pairs(18), random);

    game.kioszt(36);

    for (int i = 0; i < 18; ++i) {
        EXPECT_EQ(texts_on(game).count(u"word%1"_s.arg(i)), 1) << i;
        EXPECT_EQ(texts_on(game).count(u"szó%1"_s.arg(i)), 1) << i;
    }
}

TEST(MemoryGameOfMany, deals_every_pair_and_every_card_equally_often) {
    SeededRandom random;
    memóriajáték game(numbered_pairs(10), random);
    QMap<QString, int> dealt;
    QMap<int, int> english_on_card;
    for (int round = 0; round < 2000; ++round) {
        game.kioszt(12);
        for (int i = 0; i < 12; ++i) {
            ++dealt[game.szöveg(i)];
            english_on_card[i] += game.szöveg(i).startsWith(u"word"_s) ? 1 : 0;
        }
    }

    ASSERT_EQ(dealt.size(), 20);
    for (const int times : dealt)
        EXPECT_NEAR(times, 1200, 120);
    for (const int times : english_on_card)
        EXPECT_NEAR(times, 1000, 120);
}

TEST(MemoryGameOfMany, has_the_translation_up_to_its_first_comma_and_the_whole_english) {
    SeededRandom random;
    memóriajáték game(pairs_of({{u"apple", u"alma, almafa"},
                                {u"go, went, gone", u"megy,jár,halad"},
                                {u"dog", u"kutya"},
                                {u"well", u", nos"},
                                {u"", u"semmi"}}),
                      random);

    game.kioszt(10);

    QStringList texts = texts_on(game);
    texts.sort();
    EXPECT_EQ(texts, QStringList({QString(), QString(), u"alma"_s, u"apple"_s, u"dog"_s, u"go, went, gone"_s,
                                  u"kutya"_s, u"megy"_s, u"semmi"_s, u"well"_s}));
}

TEST(MemoryGameOfMany, matches_cards_by_their_texts_alone) {
    const QVector<szópár> pairs = pairs_of({{u"fast", u"gyors"}, {u"quick", u"gyors"}});
    for (const char16_t *english : {u"fast", u"quick"}) {
        for (const int which : {0, 1}) {
            SeededRandom random;
            memóriajáték game(pairs, random);
            game.kioszt(4);
            game.felfordít(cards_with(game, english).at(0));

            EXPECT_EQ(game.felfordít(cards_with(game, u"gyors").at(which)), fordulat::pár);
        }
    }
}

TEST(MemoryGameOfMany, does_not_match_two_equal_translations) {
    SeededRandom random;
    memóriajáték game(pairs_of({{u"fast", u"gyors"}, {u"quick", u"gyors"}}), random);
    game.kioszt(4);
    game.felfordít(cards_with(game, u"gyors").at(0));

    EXPECT_EQ(game.felfordít(cards_with(game, u"gyors").at(1)), fordulat::tévedés);
}

TEST(MemoryGameOfMany, matches_either_card_of_two_equal_pairs) {
    const QVector<szópár> pairs = pairs_of({{u"dog", u"kutya"}, {u"cat", u"macska"}, {u"dog", u"kutya"}});
    for (const int first : {0, 1}) {
        SeededRandom random;
        memóriajáték game(pairs, random);
        game.kioszt(6);
        const QVector<int> dogs = cards_with(game, u"dog");
        const QVector<int> kutyák = cards_with(game, u"kutya");
        ASSERT_EQ(dogs.size(), 2);
        ASSERT_EQ(kutyák.size(), 2);

        game.felfordít(dogs[0]);
        EXPECT_EQ(game.felfordít(kutyák[first]), fordulat::pár);
        game.lefed();
        game.felfordít(kutyák[1 - first]);
        EXPECT_EQ(game.felfordít(dogs[1]), fordulat::pár);
    }
}

TEST(MemoryGameOfMany, matches_two_cards_of_a_pair_with_equal_sides) {
    SeededRandom random;
    memóriajáték game(pairs_of({{u"taxi", u"taxi, bérkocsi"}, {u"dog", u"kutya"}}), random);
    game.kioszt(4);
    const QVector<int> cards = cards_with(game, u"taxi");
    ASSERT_EQ(cards.size(), 2);

    game.felfordít(cards[1]);

    EXPECT_EQ(game.felfordít(cards[0]), fordulat::pár);
}

TEST(MemoryGameOfMany, does_not_match_equal_texts_of_different_pairs) {
    SeededRandom random;
    memóriajáték game(pairs_of({{u"park", u"liget"}, {u"forest", u"park"}}), random);
    game.kioszt(4);
    const QVector<int> cards = cards_with(game, u"park");
    ASSERT_EQ(cards.size(), 2);

    game.felfordít(cards[0]);

    EXPECT_EQ(game.felfordít(cards[1]), fordulat::tévedés);
}

TEST(MemoryGameOfMany, remembers_the_pair_that_was_found_last_while_others_are_missed) {
    SeededRandom random;
    memóriajáték game(numbered_pairs(3), random);
    game.kioszt(6);
    std::array<int, 2> found{cards_with(game, u"word0").at(0), cards_with(game, u"szó0").at(0)};
    std::sort(found.begin(), found.end());
    game.felfordít(found[0]);
    ASSERT_EQ(game.felfordít(found[1]), fordulat::pár);
    game.lefed();

    game.felfordít(cards_with(game, u"word1").at(0));
    ASSERT_EQ(game.felfordít(cards_with(game, u"word2").at(0)), fordulat::tévedés);

    EXPECT_EQ(game.pár(), found);
}

TEST(MemoryGameOfMany, matches_texts_exactly) {
    SeededRandom random;
    memóriajáték game(pairs_of({{u"Polish", u"lengyel"}, {u"polish", u"fényez"}}), random);
    game.kioszt(4);
    game.felfordít(cards_with(game, u"Polish").at(0));

    EXPECT_EQ(game.felfordít(cards_with(game, u"fényez").at(0)), fordulat::tévedés);
}

/// Finds the partner of each card by trying the others. True when each card has just one.
bool play_to_the_end(memóriajáték &game) {
    for (int first = 0; first < game.kártyák(); ++first) {
        for (int second = first + 1; game.játékban(first) && second < game.kártyák(); ++second) {
            if (!game.játékban(second))
                continue;
            if (game.felfordít(first) != fordulat::első)
                return false;
            const fordulat outcome = game.felfordít(second);
            if (outcome == fordulat::pár)
                game.megtalál();
            else if (outcome != fordulat::tévedés)
                return false;
            game.lefed();
        }
    }
    return game.vége();
}

TEST(MemoryGameOfMany, can_be_played_to_the_end_on_every_board) {
    const QString ends[] = {u"6/6"_s, u"8/8"_s, u"10/10"_s, u"12/12"_s, u"15/15"_s, u"18/18"_s};
    for (size_t board = 0; board < játékterek.size(); ++board) {
        for (unsigned seed = 0; seed < 10; ++seed) {
            SeededRandom random(seed);
            memóriajáték game(numbered_pairs(25), random);
            game.kioszt(játékterek[board].kártyák());

            EXPECT_TRUE(play_to_the_end(game));

            EXPECT_EQ(game.állás(), ends[board]);
            EXPECT_EQ(seen(game), QString(game.kártyák(), u'.'));
        }
    }
}

TEST(MemoryGameOfMany, says_how_many_of_the_dealt_pairs_are_found) {
    SeededRandom random;
    memóriajáték game(numbered_pairs(25), random);
    game.kioszt(20);
    EXPECT_EQ(game.állás(), u"0/10"_s);

    for (int i = 0; i < 3; ++i)
        game.megtalál();

    EXPECT_EQ(game.állás(), u"3/10"_s);
}

TEST(MemoryGameOfMany, begins_anew_with_every_deal) {
    SeededRandom random;
    memóriajáték game(numbered_pairs(7), random);
    game.kioszt(12);
    ASSERT_TRUE(play_to_the_end(game));
    game.kioszt(12);
    EXPECT_EQ(seen(game), QString(12, u'-'));
    EXPECT_EQ(game.állás(), u"0/6"_s);
    EXPECT_FALSE(game.vége());
    game.felfordít(5);

    game.kioszt(14);

    EXPECT_EQ(seen(game), QString(14, u'-'));
    EXPECT_EQ(game.felfordított(), 0);
    EXPECT_EQ(game.állás(), u"0/7"_s);
    EXPECT_EQ(random.reseeds, 3);
    EXPECT_TRUE(play_to_the_end(game));
}

}  // namespace
