#include "wordlist/word_pair_list.h"

#include <gtest/gtest.h>

#include "support/printing.h"

namespace {

class WordPairList : public testing::Test {
  protected:
    [[nodiscard]] QString magyar(int i) const { return list_.pár(i).magyar; }

    szópárlista list_;
};

TEST_F(WordPairList, keeps_one_pair_when_the_same_meaning_is_added_twice) {
    list_.felvesz(QStringLiteral("apple"), QStringLiteral("alma"));

    EXPECT_EQ(list_.felvesz(QStringLiteral("apple"), QStringLiteral("alma")), 0);

    EXPECT_EQ(list_.darab(), 1);
    EXPECT_EQ(magyar(0), QStringLiteral("alma"));
}

TEST_F(WordPairList, appends_another_meaning_to_the_pair_and_none_again) {
    list_.felvesz(QStringLiteral("apple"), QStringLiteral("alma"));
    list_.felvesz(QStringLiteral("apple"), QStringLiteral("almafa"));

    list_.felvesz(QStringLiteral("apple"), QStringLiteral("alma"));

    EXPECT_EQ(list_.darab(), 1);
    EXPECT_EQ(magyar(0), QStringLiteral("alma, almafa"));
}

TEST_F(WordPairList, adds_a_meaning_that_is_only_the_beginning_of_one_it_has) {
    list_.felvesz(QStringLiteral("house"), QStringLiteral("házi"));

    list_.felvesz(QStringLiteral("house"), QStringLiteral("ház"));

    EXPECT_EQ(magyar(0), QStringLiteral("házi, ház"));
}

TEST_F(WordPairList, takes_words_of_another_case_for_other_words) {
    list_.felvesz(QStringLiteral("apple"), QStringLiteral("alma"));

    EXPECT_EQ(list_.felvesz(QStringLiteral("Apple"), QStringLiteral("alma")), 1);

    EXPECT_EQ(list_.darab(), 2);
}

TEST_F(WordPairList, adds_the_meaning_to_the_first_of_repeated_words) {
    list_.hozzáfűz({{QStringLiteral("a"), QStringLiteral("1")}, {QStringLiteral("a"), QStringLiteral("2")}});

    EXPECT_EQ(list_.felvesz(QStringLiteral("a"), QStringLiteral("3")), 0);

    EXPECT_EQ(magyar(0), QStringLiteral("1, 3"));
    EXPECT_EQ(magyar(1), QStringLiteral("2"));
}

TEST_F(WordPairList, keeps_the_order_of_insertion) {
    list_.felvesz(QStringLiteral("b"), QStringLiteral("1"));
    list_.felvesz(QStringLiteral("a"), QStringLiteral("2"));

    EXPECT_EQ(list_.pár(0).angol, QStringLiteral("b"));
    EXPECT_EQ(list_.pár(1).angol, QStringLiteral("a"));
}

TEST_F(WordPairList, selects_the_next_pair_after_removing_one) {
    list_.hozzáfűz({{QStringLiteral("a"), {}}, {QStringLiteral("b"), {}}, {QStringLiteral("c"), {}}});

    EXPECT_EQ(list_.töröl(1), 1);

    EXPECT_EQ(list_.pár(1).angol, QStringLiteral("c"));
}

TEST_F(WordPairList, selects_the_new_last_pair_after_removing_the_last) {
    list_.hozzáfűz({{QStringLiteral("a"), {}}, {QStringLiteral("b"), {}}});

    EXPECT_EQ(list_.töröl(1), 0);
}

TEST_F(WordPairList, selects_none_after_removing_the_only_pair) {
    list_.hozzáfűz({{QStringLiteral("a"), {}}});

    EXPECT_EQ(list_.töröl(0), -1);

    EXPECT_TRUE(list_.üres());
}

TEST_F(WordPairList, shows_item_i_of_both_columns_as_pair_i) {
    list_.hozzáfűz(
        {{QStringLiteral("dog"), QStringLiteral("kutya")}, {QStringLiteral("cat"), QStringLiteral("macska")}});

    EXPECT_EQ(list_.rowCount(), 2);
    EXPECT_EQ(list_.index(1, szópárlista::angol_oszlop).data().toString(), QStringLiteral("cat"));
    EXPECT_EQ(list_.index(1, szópárlista::magyar_oszlop).data().toString(), QStringLiteral("macska"));
}

}  // namespace
