#include "exercises/multiple_choice/multiple_choice.h"

#include <gtest/gtest.h>

#include <QSet>
#include <array>

#include "support/printing.h"
#include "support/seeded_random.h"
#include "support/word_pairs.h"

using namespace Qt::StringLiterals;

namespace {

using eredmény = választójáték::eredmény;

class MultipleChoice : public testing::Test {
  protected:
    SeededRandom random_;
};

TEST_F(MultipleChoice, asks_every_pair_once) {
    választójáték game(numbered_pairs(20), random_);
    game.újrakezd(irány::angolról, 5);
    QSet<QString> asked{game.kérdés()};

    while (game.ellenőriz(game.megoldás()) == eredmény::helyes) {
        game.következő();
        asked.insert(game.kérdés());
    }

    EXPECT_EQ(asked.size(), 20);
    EXPECT_TRUE(game.vége());
    EXPECT_EQ(game.hibaarány(), 0);
}

TEST_F(MultipleChoice, keeps_the_question_after_a_wrong_answer_and_counts_the_pair_once) {
    választójáték game(numbered_pairs(10), random_);
    game.újrakezd(irány::angolról, 5);
    const QString question = game.kérdés();

    EXPECT_EQ(game.ellenőriz(u"rossz"_s), eredmény::hibás);
    EXPECT_EQ(game.ellenőriz(u"rossz"_s), eredmény::hibás);

    EXPECT_EQ(game.kérdés(), question);
    EXPECT_EQ(game.számláló(), u" 1/ 10"_s);
    EXPECT_EQ(game.hibaarány(), 11);
}

TEST_F(MultipleChoice, offers_distinct_pairs_with_the_right_one_among_them) {
    választójáték game(numbered_pairs(7), random_);
    for (int round = 0; round < 200; ++round) {
        game.újrakezd(irány::magyarról, 5);
        const QSet<QString> distinct(game.kínálat().cbegin(), game.kínálat().cend());

        ASSERT_EQ(game.kínálat().size(), 5);
        ASSERT_EQ(distinct.size(), 5);
        ASSERT_EQ(game.kínálat().count(game.megoldás()), 1);
        ASSERT_TRUE(game.kérdés().startsWith(u"szó"_s));
    }
}

TEST_F(MultipleChoice, puts_the_right_one_equally_often_in_each_place) {
    választójáték game(numbered_pairs(9), random_);
    std::array<int, 5> places{};
    constexpr int rounds = 10000;
    for (int round = 0; round < rounds; ++round) {
        game.újrakezd(irány::angolról, 5);
        ++places[static_cast<size_t>(game.kínálat().indexOf(game.megoldás()))];
    }

    double chi_square = 0;
    for (const int count : places)
        chi_square += (count - rounds / 5.0) * (count - rounds / 5.0) / (rounds / 5.0);
    // 99.9 % of a chi-square distribution with four degrees of freedom.
    EXPECT_LT(chi_square, 18.47);
}

TEST_F(MultipleChoice, offers_every_other_pair_equally_often) {
    választójáték game(numbered_pairs(3), random_);
    int first = 0;
    int rounds = 0;
    for (int round = 0; round < 3000; ++round) {
        game.újrakezd(irány::angolról, 2);
        if (game.megoldás() == u"szó2"_s)
            continue;
        ++rounds;
        first += game.kínálat().contains(u"szó2"_s) ? 1 : 0;
    }

    EXPECT_NEAR(static_cast<double>(first) / rounds, 0.5, 0.05);
}

TEST_F(MultipleChoice, uses_only_the_first_of_several_hungarian_meanings_and_never_cuts_the_english) {
    választójáték game({{u"to go, went, gone"_s, u"megy, jár"_s}, {u"dog"_s, u"kutya"_s}}, random_);
    game.újrakezd(irány::angolról, 2);

    const QSet<QString> offered(game.kínálat().cbegin(), game.kínálat().cend());
    EXPECT_EQ(offered, QSet<QString>({u"megy"_s, u"kutya"_s}));
    game.újrakezd(irány::magyarról, 2);
    EXPECT_TRUE(game.kínálat().contains(u"to go, went, gone"_s));
}

TEST_F(MultipleChoice, offers_no_more_candidates_than_there_are_pairs) {
    választójáték game(numbered_pairs(3), random_);

    game.újrakezd(irány::angolról, 5);

    EXPECT_EQ(game.kínálat().size(), 3);
}

TEST_F(MultipleChoice, draws_the_direction_of_every_question_when_it_changes) {
    választójáték game(numbered_pairs(600), random_);
    game.újrakezd(irány::változó, 2);
    int from_english = 0;
    do {
        from_english += game.kérdés().startsWith(u"word"_s) ? 1 : 0;
        if (game.ellenőriz(game.megoldás()) == eredmény::vége)
            break;
        game.következő();
    } while (true);

    EXPECT_NEAR(from_english, 300, 50);
}

TEST_F(MultipleChoice, overwrites_a_first_pair_without_english_by_the_next) {
    választójáték game({{QString(), u"semmi"_s}, {u"dog"_s, u"kutya"_s}}, random_);

    EXPECT_EQ(game.párok_száma(), 1);
}

TEST_F(MultipleChoice, begins_anew_after_its_end) {
    választójáték game(numbered_pairs(2), random_);
    game.újrakezd(irány::angolról, 2);
    static_cast<void>(game.ellenőriz(u"rossz"_s));
    static_cast<void>(game.ellenőriz(game.megoldás()));
    game.következő();
    ASSERT_EQ(game.ellenőriz(game.megoldás()), eredmény::vége);

    game.újrakezd(irány::angolról, 2);

    EXPECT_FALSE(game.vége());
    EXPECT_EQ(game.hibaarány(), 0);
    EXPECT_EQ(game.számláló(), u" 1/ 2"_s);
}

TEST_F(MultipleChoice, holds_five_thousand_pairs) {
    választójáték game(numbered_pairs(5000), random_);
    game.újrakezd(irány::változó, 5);
    int asked = 1;
    while (game.ellenőriz(game.megoldás()) == eredmény::helyes) {
        game.következő();
        ++asked;
    }

    EXPECT_EQ(asked, 5000);
}

}  // namespace
