#include "exercises/common/question_pairs.h"

#include <gtest/gtest.h>

#include <QSet>

#include "support/printing.h"
#include "support/seeded_random.h"
#include "support/word_pairs.h"

using namespace Qt::StringLiterals;

namespace {

class QuestionPairs : public testing::Test {
  protected:
    SeededRandom random_;
};

TEST_F(QuestionPairs, ask_every_pair_once) {
    kérdéssor row(numbered_pairs(50), random_);
    QSet<int> asked;

    for (int i = 0; i < 50; ++i)
        asked.insert(row.kihúz());

    EXPECT_EQ(asked.size(), 50);
    EXPECT_TRUE(row.végére_ért());
}

TEST_F(QuestionPairs, ask_in_random_order) {
    kérdéssor row(numbered_pairs(50), random_);
    int in_list_order = 0;

    for (int i = 0; i < 50; ++i)
        in_list_order += row.kihúz() == i ? 1 : 0;

    EXPECT_LT(in_list_order, 10);
}

TEST_F(QuestionPairs, ask_a_pair_again_that_was_put_back_and_do_not_count_it_twice) {
    kérdéssor row(numbered_pairs(2), random_);
    const int first = row.kihúz();
    EXPECT_EQ(row.számláló(), u" 1/ 2"_s);

    row.visszatesz(first);

    QSet<int> asked{row.kihúz()};
    EXPECT_EQ(row.számláló(), u" 1/ 2"_s);
    asked.insert(row.kihúz());
    EXPECT_EQ(row.számláló(), u" 2/ 2"_s);
    EXPECT_EQ(asked.size(), 2);
}

TEST_F(QuestionPairs, count_with_a_leading_blank_before_each_number) {
    kérdéssor row(numbered_pairs(20), random_);
    for (int i = 0; i < 3; ++i)
        static_cast<void>(row.kihúz());

    EXPECT_EQ(row.számláló(), u" 3/ 20"_s);
}

TEST_F(QuestionPairs, divide_the_failed_ones_by_the_highest_index) {
    kérdéssor row(numbered_pairs(10), random_);
    EXPECT_EQ(row.hibaarány(), 0);

    row.hibázott(4);
    row.hibázott(4);
    EXPECT_EQ(row.hibaarány(), 11);
    row.hibázott(5);
    EXPECT_EQ(row.hibaarány(), 22);
}

TEST_F(QuestionPairs, reach_more_than_a_hundred_percent_when_all_have_failed) {
    kérdéssor row(numbered_pairs(10), random_);

    for (int i = 0; i < 10; ++i)
        row.hibázott(i);

    EXPECT_EQ(row.hibaarány(), 111);
}

TEST_F(QuestionPairs, of_one_make_all_or_nothing) {
    kérdéssor row(numbered_pairs(1), random_);
    EXPECT_EQ(row.hibaarány(), 0);

    row.hibázott(0);

    EXPECT_EQ(row.hibaarány(), 100);
}

TEST_F(QuestionPairs, begin_anew_without_a_trace) {
    kérdéssor row(numbered_pairs(3), random_);
    for (int i = 0; i < 3; ++i)
        row.hibázott(row.kihúz());

    row.újrakezd();

    EXPECT_EQ(row.hibaarány(), 0);
    EXPECT_FALSE(row.végére_ért());
    for (int i = 0; i < 3; ++i)
        EXPECT_FALSE(row.pár(i).kész);
}

TEST_F(QuestionPairs, know_that_there_are_none) {
    const kérdéssor row({}, random_);

    EXPECT_TRUE(row.üres());
    EXPECT_EQ(row.utolsó(), -1);
}

}  // namespace
