#include "freedict/word_alignment.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using freedict::TranslationTable;
using freedict::WordNumbers;

// "a ház" the house, "a könyv" the book, "egy könyv" a book.
enum Hungarian { the_word, house_word, book_word, one_word, hungarian_count };
enum English { the, house, book, one };

const QVector<WordNumbers> hungarian{{the_word, house_word}, {the_word, book_word}, {one_word, book_word}};
const QVector<WordNumbers> english{{the, house}, {the, book}, {one, book}};

TEST(WordAlignment, words_that_stand_together_in_several_texts_find_each_other) {
    const TranslationTable table(hungarian, english, hungarian_count, 20);

    EXPECT_GT(table.probability(the_word, the), 0.9);
    EXPECT_GT(table.probability(book_word, book), 0.9);
    EXPECT_GT(table.probability(house_word, house), 0.9);
    EXPECT_GT(table.probability(one_word, one), 0.9);
}

TEST(WordAlignment, one_round_shares_each_word_equally_among_the_words_beside_it) {
    const TranslationTable table(hungarian, english, hungarian_count, 1);

    // Each of the two texts with "könyv" gives a third of "book" to it, and a third of the word beside "book".
    EXPECT_DOUBLE_EQ(table.probability(book_word, book), 0.5);
    EXPECT_DOUBLE_EQ(table.probability(book_word, the), 0.25);
    EXPECT_DOUBLE_EQ(table.probability(book_word, one), 0.25);
    EXPECT_DOUBLE_EQ(table.probability_alone(book), 1.0 / 3);
}

TEST(WordAlignment, the_probabilities_of_a_word_make_one) {
    const TranslationTable table(hungarian, english, hungarian_count, 5);

    for (int from = 0; from < hungarian_count; ++from) {
        double sum = 0;
        for (const int to : {the, house, book, one})
            sum += table.probability(from, to);
        EXPECT_NEAR(sum, 1, 1e-12);
    }
}

TEST(WordAlignment, words_that_never_stood_together_have_no_probability) {
    const TranslationTable table(hungarian, english, hungarian_count, 5);

    EXPECT_EQ(table.probability(house_word, book), 0);
    EXPECT_EQ(table.probability(one_word, the), 0);
}

TEST(WordAlignment, a_text_gives_a_word_the_mean_of_its_words_and_of_none) {
    const TranslationTable table(hungarian, english, hungarian_count, 5);

    const double expected =
        (table.probability_alone(book) + table.probability(the_word, book) + table.probability(book_word, book)) / 3;
    EXPECT_DOUBLE_EQ(table.probability_given({the_word, book_word}, book), expected);
}

TEST(NaturalLogarithm, is_that_of_the_library_to_the_last_digits) {
    for (double number = 1e-9; number < 1e9; number *= 1.37)
        EXPECT_NEAR(freedict::natural_logarithm(number), std::log(number), 1e-14 * (1 + std::abs(std::log(number))));
    EXPECT_EQ(freedict::natural_logarithm(1), 0);
}

}  // namespace
