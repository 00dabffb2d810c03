#include "exercises/typed_quiz/typed_quiz.h"

#include <gtest/gtest.h>

#include <QSet>

#include "support/printing.h"
#include "support/seeded_random.h"
#include "support/word_pairs.h"

using namespace Qt::StringLiterals;

namespace {

using eredmény = kikérdezés::eredmény;

class TypedQuiz : public testing::Test {
  protected:
    SeededRandom random_;
};

TEST_F(TypedQuiz, asks_every_pair_once_when_all_answers_are_right) {
    kikérdezés quiz(numbered_pairs(10), random_);
    QSet<QString> asked;
    eredmény outcome = eredmény::helyes;

    while (outcome == eredmény::helyes) {
        quiz.kérdez();
        asked.insert(quiz.kérdés());
        outcome = quiz.ellenőriz(quiz.megoldás());
    }

    EXPECT_EQ(outcome, eredmény::vége);
    EXPECT_EQ(asked.size(), 10);
    EXPECT_EQ(quiz.hibaarány(), 0);
    EXPECT_EQ(random_.reseeds, 10);
}

TEST_F(TypedQuiz, counts_a_pair_that_failed_three_times_once) {
    kikérdezés quiz(numbered_pairs(10), random_);
    quiz.kérdez();
    const QString failing = quiz.kérdés();
    int failures = 0;
    eredmény outcome = eredmény::helyes;
    while (true) {
        const bool fail = quiz.kérdés() == failing && failures < 3;
        outcome = quiz.ellenőriz(fail ? u"rossz"_s : quiz.megoldás());
        failures += fail ? 1 : 0;
        if (outcome == eredmény::vége)
            break;
        quiz.kérdez();
    }

    EXPECT_EQ(failures, 3);
    EXPECT_EQ(quiz.hibaarány(), 11);
}

TEST_F(TypedQuiz, shows_the_same_number_again_after_a_wrong_answer) {
    kikérdezés quiz(numbered_pairs(10), random_);
    quiz.kérdez();
    EXPECT_EQ(quiz.számláló(), u" 1/ 10"_s);

    EXPECT_EQ(quiz.ellenőriz(QString()), eredmény::hibás);
    quiz.kérdez();

    EXPECT_EQ(quiz.számláló(), u" 1/ 10"_s);
}

TEST_F(TypedQuiz, may_ask_the_failed_pair_at_once) {
    int at_once = 0;
    for (unsigned seed = 0; seed < 50; ++seed) {
        SeededRandom random(seed);
        kikérdezés quiz(numbered_pairs(3), random);
        quiz.kérdez();
        const QString failed = quiz.kérdés();
        static_cast<void>(quiz.ellenőriz(u"rossz"_s));
        quiz.kérdez();
        at_once += quiz.kérdés() == failed ? 1 : 0;
    }

    EXPECT_GT(at_once, 5);
    EXPECT_LT(at_once, 30);
}

TEST_F(TypedQuiz, compares_answers_whole_and_exactly) {
    kikérdezés quiz({{u"apple"_s, u"alma, almafa"_s}}, random_);
    quiz.iránybeállít(irány::angolról);
    for (const char16_t *wrong : {u"alma", u"Alma, almafa", u"alma, almafa ", u"alma,almafa", u""}) {
        quiz.kérdez();
        EXPECT_EQ(quiz.ellenőriz(QString::fromUtf16(wrong)), eredmény::hibás);
    }
    quiz.kérdez();

    EXPECT_EQ(quiz.ellenőriz(u"alma, almafa"_s), eredmény::vége);
}

TEST_F(TypedQuiz, asks_in_the_chosen_direction) {
    kikérdezés quiz(numbered_pairs(5), random_);
    quiz.iránybeállít(irány::angolról);
    quiz.kérdez();
    EXPECT_TRUE(quiz.kérdés().startsWith(u"word"_s));
    EXPECT_TRUE(quiz.megoldás().startsWith(u"szó"_s));

    EXPECT_TRUE(quiz.irányváltás(irány::magyarról));
    EXPECT_TRUE(quiz.kérdés().startsWith(u"szó"_s));
    EXPECT_TRUE(quiz.megoldás().startsWith(u"word"_s));
}

TEST_F(TypedQuiz, draws_the_direction_anew_for_every_question_when_it_changes) {
    kikérdezés quiz(numbered_pairs(1000), random_);
    quiz.iránybeállít(irány::változó);
    int from_english = 0;
    int changes = 0;
    bool previous = false;
    for (int i = 0; i < 1000; ++i) {
        quiz.kérdez();
        const bool english = quiz.kérdés().startsWith(u"word"_s);
        from_english += english ? 1 : 0;
        changes += i > 0 && english != previous ? 1 : 0;
        previous = english;
    }

    EXPECT_NEAR(from_english, 500, 60);
    EXPECT_NEAR(changes, 500, 60);
}

TEST_F(TypedQuiz, begins_anew_when_the_direction_changes) {
    kikérdezés quiz(numbered_pairs(5), random_);
    quiz.kérdez();
    static_cast<void>(quiz.ellenőriz(u"rossz"_s));
    quiz.kérdez();
    static_cast<void>(quiz.ellenőriz(quiz.megoldás()));
    quiz.kérdez();

    quiz.irányváltás(irány::angolról);

    EXPECT_EQ(quiz.számláló(), u" 1/ 5"_s);
    EXPECT_EQ(quiz.hibaarány(), 0);
}

TEST_F(TypedQuiz, of_one_pair_stays_as_it_is_when_the_direction_changes) {
    kikérdezés quiz(numbered_pairs(1), random_);
    quiz.kérdez();
    const QString question = quiz.kérdés();

    EXPECT_FALSE(quiz.irányváltás(irány::angolról));

    EXPECT_EQ(quiz.kérdés(), question);
}

}  // namespace
