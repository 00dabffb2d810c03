#include "exercises/letter_puzzle/letter_puzzle.h"

#include <gtest/gtest.h>

#include <QMap>

#include "support/printing.h"
#include "support/scripted_random.h"
#include "support/seeded_random.h"
#include "support/word_pairs.h"

using namespace Qt::StringLiterals;

namespace {

class LetterPuzzle : public testing::Test {
  protected:
    SeededRandom random_;
};

/// The letters to put together, with a bar between two, of the only pair, asked in this direction.
QString letters_to_put_together(const char16_t *english, const char16_t *hungarian, irány direction) {
    SeededRandom random;
    kirakójáték puzzle(pairs_of({{english, hungarian}}), random);
    return puzzle.következő(direction) ? puzzle.betűk().join(u'|') : QString();
}

/// How often each question is asked until none is left.
QMap<QString, int> ask_all(kirakójáték &puzzle, irány direction) {
    QMap<QString, int> asked;
    while (puzzle.következő(direction))
        ++asked[puzzle.kérdés()];
    return asked;
}

TEST_F(LetterPuzzle, asks_every_pair_once) {
    kirakójáték puzzle(numbered_pairs(20), random_);

    const QMap<QString, int> asked = ask_all(puzzle, irány::angolról);

    EXPECT_EQ(asked.size(), 20);
    for (const int times : asked)
        EXPECT_EQ(times, 1);
}

TEST_F(LetterPuzzle, asks_in_random_order) {
    QStringList order;
    kirakójáték puzzle(numbered_pairs(20), random_);
    while (puzzle.következő(irány::angolról))
        order.append(puzzle.kérdés());
    int in_list_order = 0;
    for (int i = 0; i < order.size(); ++i)
        in_list_order += order[i] == u"word%1"_s.arg(i) ? 1 : 0;

    EXPECT_LT(in_list_order, 10);
}

TEST_F(LetterPuzzle, asks_nothing_any_more_after_the_last_pair) {
    kirakójáték puzzle(numbered_pairs(2), random_);
    ASSERT_TRUE(puzzle.következő(irány::angolról));
    ASSERT_TRUE(puzzle.következő(irány::angolról));

    EXPECT_FALSE(puzzle.következő(irány::angolról));
    EXPECT_FALSE(puzzle.következő(irány::változó));
}

TEST_F(LetterPuzzle, asks_nothing_without_a_pair) {
    kirakójáték puzzle({}, random_);

    EXPECT_FALSE(puzzle.következő(irány::változó));
}

TEST_F(LetterPuzzle, draws_the_pair_until_it_hits_one_that_has_not_been_asked) {
    // Of three pairs: 0.5 is the second; 0.4 the second again; 0.1 the first; then first, second and third.
    ScriptedRandom random({0.5, 0.4, 0.1, 0.2, 0.6, 0.99});
    kirakójáték puzzle(numbered_pairs(3), random);
    QStringList order;

    while (puzzle.következő(irány::angolról))
        order.append(puzzle.kérdés());

    EXPECT_EQ(order, QStringList({u"word1"_s, u"word0"_s, u"word2"_s}));
    EXPECT_EQ(random.left(), 0U);
}

TEST_F(LetterPuzzle, asks_in_the_chosen_direction) {
    kirakójáték puzzle(pairs_of({{u"ship", u"hajó"}, {u"ship", u"hajó"}}), random_);

    ASSERT_TRUE(puzzle.következő(irány::angolról));
    EXPECT_EQ(puzzle.kérdés(), u"ship"_s);
    EXPECT_EQ(puzzle.kérdésnyelve(), kérdésnyelv::angol);
    EXPECT_EQ(puzzle.megoldás().value(), u"hajó"_s);

    ASSERT_TRUE(puzzle.következő(irány::magyarról));
    EXPECT_EQ(puzzle.kérdés(), u"hajó"_s);
    EXPECT_EQ(puzzle.kérdésnyelve(), kérdésnyelv::magyar);
    EXPECT_EQ(puzzle.megoldás().value(), u"ship"_s);
    EXPECT_EQ(puzzle.pár().angol, u"ship"_s);
    EXPECT_EQ(puzzle.pár().magyar, u"hajó"_s);
}

TEST_F(LetterPuzzle, draws_the_direction_of_every_word_after_the_word_when_it_changes) {
    // One of four pairs, then the direction: below a half it asks in English. In the second line the first pair is
    // drawn again in vain.
    ScriptedRandom random({0.0, 0.49,      //
                           0.1, 0.3, 0.5,  //
                           0.6, 0.0,       //
                           0.99, 0.99});
    kirakójáték puzzle(numbered_pairs(4), random);
    QStringList order;

    while (puzzle.következő(irány::változó))
        order.append(puzzle.kérdés());

    EXPECT_EQ(order, QStringList({u"word0"_s, u"szó1"_s, u"word2"_s, u"szó3"_s}));
    EXPECT_EQ(random.left(), 0U);
}

TEST_F(LetterPuzzle, draws_no_direction_when_it_is_chosen) {
    for (const irány direction : {irány::angolról, irány::magyarról}) {
        ScriptedRandom random({0.9});
        kirakójáték puzzle(numbered_pairs(2), random);

        EXPECT_TRUE(puzzle.következő(direction));
        EXPECT_EQ(random.left(), 0U);
    }
}

TEST_F(LetterPuzzle, is_put_together_from_hungarian_letters_when_the_answer_is_hungarian) {
    EXPECT_EQ(letters_to_put_together(u"grape", u"szőlő", irány::angolról), u"sz|ő|l|ő"_s);
    EXPECT_EQ(letters_to_put_together(u"jungle", u"dzsungel", irány::angolról), u"dzs|u|n|g|e|l"_s);
    EXPECT_EQ(letters_to_put_together(u"drawing pin", u"rajzszög", irány::angolról), u"r|a|j|z|sz|ö|g"_s);
}

TEST_F(LetterPuzzle, is_put_together_from_characters_when_the_answer_is_english) {
    EXPECT_EQ(letters_to_put_together(u"ship", u"hajó", irány::magyarról), u"s|h|i|p"_s);
    EXPECT_EQ(letters_to_put_together(u"pigsty", u"disznóól", irány::magyarról), u"p|i|g|s|t|y"_s);
}

TEST_F(LetterPuzzle, changes_the_letters_with_the_language_of_each_answer) {
    kirakójáték puzzle(pairs_of({{u"sty", u"disznóól"}, {u"sty", u"disznóól"}, {u"sty", u"disznóól"}}), random_);

    ASSERT_TRUE(puzzle.következő(irány::angolról));
    EXPECT_EQ(puzzle.betűk().join(u'|'), u"d|i|sz|n|ó|ó|l"_s);
    ASSERT_TRUE(puzzle.következő(irány::magyarról));
    EXPECT_EQ(puzzle.betűk().join(u'|'), u"s|t|y"_s);
    ASSERT_TRUE(puzzle.következő(irány::angolról));
    EXPECT_EQ(puzzle.betűk().join(u'|'), u"d|i|sz|n|ó|ó|l"_s);
}

TEST_F(LetterPuzzle, has_a_letter_for_each_blank) {
    EXPECT_EQ(letters_to_put_together(u"ice cream", u"fagylalt", irány::magyarról), u"i|c|e|_|c|r|e|a|m"_s);
    EXPECT_EQ(letters_to_put_together(u"cheers", u"jó  napot ", irány::angolról), u"j|ó|_|_|n|a|p|o|t|_"_s);
}

TEST_F(LetterPuzzle, asks_for_all_meanings_of_a_word) {
    EXPECT_EQ(letters_to_put_together(u"horse", u"ló, paci", irány::angolról), u"l|ó|,|_|p|a|c|i"_s);
}

TEST_F(LetterPuzzle, shows_the_blanks_of_the_question_as_they_are) {
    kirakójáték puzzle(pairs_of({{u"ice cream", u"fagylalt"}}), random_);

    ASSERT_TRUE(puzzle.következő(irány::angolról));

    EXPECT_EQ(puzzle.kérdés(), u"ice cream"_s);
    EXPECT_EQ(puzzle.pár().angol, u"ice cream"_s);
}

TEST_F(LetterPuzzle, must_be_answered_with_a_letter_for_each_blank) {
    kirakójáték puzzle(pairs_of({{u"to give up", u"felad"}}), random_);
    ASSERT_TRUE(puzzle.következő(irány::magyarról));

    for (const char16_t *wrong : {u"to give up", u"togiveup", u"to_give up", u"to_giveup_"})
        EXPECT_FALSE(puzzle.ellenőriz(QString::fromUtf16(wrong))) << QString::fromUtf16(wrong).toStdString();
    EXPECT_TRUE(puzzle.ellenőriz(u"to_give_up"_s));
}

TEST_F(LetterPuzzle, compares_the_answer_exactly) {
    kirakójáték puzzle(pairs_of({{u"Danube", u"Duna"}}), random_);
    ASSERT_TRUE(puzzle.következő(irány::angolról));

    for (const char16_t *wrong : {u"duna", u"DUNA", u"Dunaa", u"Dun", u"Duna ", u"Dúna", u""})
        EXPECT_FALSE(puzzle.ellenőriz(QString::fromUtf16(wrong))) << QString::fromUtf16(wrong).toStdString();
    EXPECT_TRUE(puzzle.ellenőriz(u"Duna"_s));
}

TEST_F(LetterPuzzle, keeps_the_question_after_a_wrong_answer_and_marks_the_pair) {
    kirakójáték puzzle(numbered_pairs(5), random_);
    ASSERT_TRUE(puzzle.következő(irány::angolról));
    const QString question = puzzle.kérdés();
    const QStringList letters = puzzle.betűk();
    EXPECT_FALSE(puzzle.pár().hibás);

    EXPECT_FALSE(puzzle.ellenőriz(u"rossz"_s));

    EXPECT_TRUE(puzzle.pár().hibás);
    EXPECT_EQ(puzzle.kérdés(), question);
    EXPECT_EQ(puzzle.betűk(), letters);
    EXPECT_EQ(puzzle.számláló(), u" 1/ 5"_s);
    EXPECT_TRUE(puzzle.ellenőriz(puzzle.megoldás().value()));
    EXPECT_TRUE(puzzle.pár().hibás);
}

TEST_F(LetterPuzzle, does_not_ask_a_failed_pair_again) {
    kirakójáték puzzle(numbered_pairs(5), random_);
    int asked = 0;

    while (puzzle.következő(irány::angolról)) {
        ++asked;
        static_cast<void>(puzzle.ellenőriz(u"rossz"_s));
    }

    EXPECT_EQ(asked, 5);
}

TEST_F(LetterPuzzle, marks_no_pair_that_is_answered_rightly) {
    kirakójáték puzzle(numbered_pairs(1), random_);
    ASSERT_TRUE(puzzle.következő(irány::magyarról));

    EXPECT_TRUE(puzzle.ellenőriz(u"word0"_s));

    EXPECT_FALSE(puzzle.pár().hibás);
}

TEST_F(LetterPuzzle, passes_pairs_over_that_lack_a_side) {
    const QVector<szópár> pairs =
        pairs_of({{u"", u"semmi"}, {u"dog", u"kutya"}, {u"cat", u""}, {u"", u""}, {u"egg", u"tojás"}});
    for (unsigned seed = 0; seed < 100; ++seed) {
        for (const irány direction : {irány::angolról, irány::magyarról, irány::változó}) {
            SeededRandom random(seed);
            kirakójáték puzzle(pairs, random);
            QStringList asked;
            while (puzzle.következő(direction))
                asked.append(puzzle.pár().angol);
            asked.sort();

            ASSERT_EQ(asked, QStringList({u"dog"_s, u"egg"_s})) << seed;
        }
    }
}

TEST_F(LetterPuzzle, counts_a_pair_that_it_passes_over_as_asked) {
    // The first pair, which is passed over, then the second; no direction is drawn for the first.
    ScriptedRandom random({0.0, 0.6, 0.7});
    kirakójáték puzzle(pairs_of({{u"", u"semmi"}, {u"dog", u"kutya"}}), random);

    ASSERT_TRUE(puzzle.következő(irány::változó));

    EXPECT_EQ(puzzle.kérdés(), u"kutya"_s);
    EXPECT_EQ(puzzle.számláló(), u" 2/ 2"_s);
    EXPECT_EQ(random.reseeds, 2);
    EXPECT_FALSE(puzzle.következő(irány::változó));
}

TEST_F(LetterPuzzle, ends_when_all_pairs_lack_a_side) {
    kirakójáték puzzle(pairs_of({{u"", u"semmi"}, {u"cat", u""}, {u"", u""}}), random_);

    EXPECT_FALSE(puzzle.következő(irány::változó));

    puzzle.újrakezd();
    EXPECT_FALSE(puzzle.következő(irány::változó));
}

TEST_F(LetterPuzzle, asks_for_two_hundred_letters_and_passes_over_more) {
    // A Hungarian letter may have several characters.
    kirakójáték whole({{u"ox"_s, u"sz"_s.repeated(200)}}, random_);
    ASSERT_TRUE(whole.következő(irány::angolról));
    EXPECT_EQ(whole.betűk().size(), 200);
    EXPECT_EQ(whole.hosszúak(), 0);
    EXPECT_FALSE(whole.semmi_kérdezhető());

    kirakójáték longer({{u"ox"_s, QString(201, u'a')}, {QString(30000, u'x'), u"hal"_s}}, random_);
    QStringList asked;
    int passed_over = 0;
    while (longer.következő(irány::angolról)) {
        asked.append(longer.megoldás().value());
        passed_over += longer.hosszúak();
    }
    passed_over += longer.hosszúak();
    EXPECT_EQ(asked, QStringList(u"hal"_s));
    EXPECT_EQ(passed_over, 1);
}

TEST_F(LetterPuzzle, knows_when_there_are_pairs_but_none_to_ask) {
    kirakójáték one_sided(pairs_of({{u"", u"semmi"}, {u"cat", u""}}), random_);
    EXPECT_FALSE(one_sided.következő(irány::változó));
    EXPECT_TRUE(one_sided.semmi_kérdezhető());
    EXPECT_EQ(one_sided.hosszúak(), 0);

    kirakójáték none({}, random_);
    EXPECT_FALSE(none.következő(irány::változó));
    EXPECT_FALSE(none.semmi_kérdezhető());

    kirakójáték some(numbered_pairs(1), random_);
    EXPECT_TRUE(some.következő(irány::változó));
    EXPECT_FALSE(some.következő(irány::változó));
    EXPECT_FALSE(some.semmi_kérdezhető());
}

TEST_F(LetterPuzzle, counts_with_a_leading_blank_before_each_number) {
    kirakójáték puzzle(numbered_pairs(12), random_);
    QStringList counters;
    while (puzzle.következő(irány::változó))
        counters.append(puzzle.számláló());

    ASSERT_EQ(counters.size(), 12);
    EXPECT_EQ(counters[0], u" 1/ 12"_s);
    EXPECT_EQ(counters[1], u" 2/ 12"_s);
    EXPECT_EQ(counters[11], u" 12/ 12"_s);
}

TEST_F(LetterPuzzle, begins_a_new_sequence_of_random_numbers_with_each_word) {
    kirakójáték puzzle(numbered_pairs(10), random_);

    for (int i = 1; i <= 10; ++i) {
        ASSERT_TRUE(puzzle.következő(irány::változó));
        EXPECT_EQ(random_.reseeds, i);
    }
}

TEST_F(LetterPuzzle, asks_every_pair_again_when_it_is_begun_anew) {
    kirakójáték puzzle(numbered_pairs(4), random_);
    while (puzzle.következő(irány::angolról))
        static_cast<void>(puzzle.ellenőriz(u"rossz"_s));

    puzzle.újrakezd();

    ASSERT_TRUE(puzzle.következő(irány::angolról));
    EXPECT_EQ(puzzle.számláló(), u" 1/ 4"_s);
    EXPECT_FALSE(puzzle.pár().hibás);
    puzzle.újrakezd();
    EXPECT_EQ(ask_all(puzzle, irány::angolról).size(), 4);
}

}  // namespace
