#include "wordlist/word_pair_list.h"

#include <gtest/gtest.h>

#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

class WordPairList : public testing::Test {
  protected:
    [[nodiscard]] QString magyar(int i) const { return list_.pár(i).magyar; }

    szópárlista list_;
};

TEST_F(WordPairList, keeps_one_pair_when_the_same_meaning_is_added_twice) {
    list_.felvesz(u"apple"_s, u"alma"_s);

    EXPECT_EQ(list_.felvesz(u"apple"_s, u"alma"_s), 0);

    EXPECT_EQ(list_.darab(), 1);
    EXPECT_EQ(magyar(0), u"alma"_s);
}

TEST_F(WordPairList, appends_another_meaning_to_the_pair_and_none_again) {
    list_.felvesz(u"apple"_s, u"alma"_s);
    list_.felvesz(u"apple"_s, u"almafa"_s);

    list_.felvesz(u"apple"_s, u"alma"_s);

    EXPECT_EQ(list_.darab(), 1);
    EXPECT_EQ(magyar(0), u"alma, almafa"_s);
}

TEST_F(WordPairList, adds_a_meaning_that_is_only_the_beginning_of_one_it_has) {
    list_.felvesz(u"house"_s, u"házi"_s);

    list_.felvesz(u"house"_s, u"ház"_s);

    EXPECT_EQ(magyar(0), u"házi, ház"_s);
}

TEST_F(WordPairList, takes_words_of_another_case_for_other_words) {
    list_.felvesz(u"apple"_s, u"alma"_s);

    EXPECT_EQ(list_.felvesz(u"Apple"_s, u"alma"_s), 1);

    EXPECT_EQ(list_.darab(), 2);
}

TEST_F(WordPairList, adds_the_meaning_to_the_first_of_repeated_words) {
    list_.hozzáfűz({{u"a"_s, u"1"_s}, {u"a"_s, u"2"_s}});

    EXPECT_EQ(list_.felvesz(u"a"_s, u"3"_s), 0);

    EXPECT_EQ(magyar(0), u"1, 3"_s);
    EXPECT_EQ(magyar(1), u"2"_s);
}

TEST_F(WordPairList, keeps_the_order_of_insertion) {
    list_.felvesz(u"b"_s, u"1"_s);
    list_.felvesz(u"a"_s, u"2"_s);

    EXPECT_EQ(list_.pár(0).angol, u"b"_s);
    EXPECT_EQ(list_.pár(1).angol, u"a"_s);
}

TEST_F(WordPairList, selects_the_next_pair_after_removing_one) {
    list_.hozzáfűz({{u"a"_s, {}}, {u"b"_s, {}}, {u"c"_s, {}}});

    EXPECT_EQ(list_.töröl(1), 1);

    EXPECT_EQ(list_.pár(1).angol, u"c"_s);
}

TEST_F(WordPairList, selects_the_new_last_pair_after_removing_the_last) {
    list_.hozzáfűz({{u"a"_s, {}}, {u"b"_s, {}}});

    EXPECT_EQ(list_.töröl(1), 0);
}

TEST_F(WordPairList, selects_none_after_removing_the_only_pair) {
    list_.hozzáfűz({{u"a"_s, {}}});

    EXPECT_EQ(list_.töröl(0), -1);

    EXPECT_TRUE(list_.üres());
}

TEST_F(WordPairList, shows_item_i_of_both_columns_as_pair_i) {
    list_.hozzáfűz({{u"dog"_s, u"kutya"_s}, {u"cat"_s, u"macska"_s}});

    EXPECT_EQ(list_.rowCount(), 2);
    EXPECT_EQ(list_.index(1, szópárlista::angol_oszlop).data().toString(), u"cat"_s);
    EXPECT_EQ(list_.index(1, szópárlista::magyar_oszlop).data().toString(), u"macska"_s);
}

}  // namespace
