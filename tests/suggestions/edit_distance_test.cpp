#include "suggestions/edit_distance.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

#include "support/files_for_tests.h"

namespace {

using nyelv = címszólista::nyelv;
namespace cost = eltérésköltség;

int distance(const char16_t *text, const char16_t *word, nyelv language) {
    return eltérésmérő(cp1250(text), language).mér(cp1250(word), 1000);
}

TEST(EditDistance, of_a_text_from_itself_is_nothing_whatever_its_capitals) {
    EXPECT_EQ(distance(u"Monday", u"monday", nyelv::angol), 0);
    EXPECT_EQ(distance(u"ŐSZ", u"ősz", nyelv::magyar), 0);
}

TEST(EditDistance, counts_swapped_and_doubled_letters_as_less_than_one_letter) {
    EXPECT_EQ(distance(u"recieve", u"receive", nyelv::angol), cost::csere);
    EXPECT_EQ(distance(u"begining", u"beginning", nyelv::angol), cost::kettőzés);
    EXPECT_EQ(distance(u"untill", u"until", nyelv::angol), cost::kettőzés);
    EXPECT_EQ(distance(u"wich", u"which", nyelv::angol), cost::betű);
    EXPECT_EQ(distance(u"ablxk", u"ablak", nyelv::magyar), cost::betű);
}

TEST(EditDistance, counts_length_less_than_another_vowel_and_that_less_than_a_letter) {
    EXPECT_EQ(distance(u"hütő", u"hűtő", nyelv::magyar), cost::hosszúság);
    EXPECT_EQ(distance(u"tőr", u"tór", nyelv::magyar), cost::hangzás);
    EXPECT_EQ(distance(u"megbeszéles", u"megbeszélés", nyelv::magyar), cost::ékezet);
    EXPECT_LT(cost::hosszúság + cost::hangzás, cost::csere);
    // Who types no accent at all.
    EXPECT_EQ(distance(u"huto", u"hűtő", nyelv::magyar), 2 * cost::ékezet_nélkül);
}

TEST(EditDistance, knows_letters_that_sound_the_same) {
    EXPECT_EQ(distance(u"gójó", u"gólyó", nyelv::magyar), cost::hangjel);
    EXPECT_EQ(distance(u"muszály", u"muszáj", nyelv::magyar), cost::hangjel);
    EXPECT_GT(distance(u"gojo", u"golyo", nyelv::angol), cost::hangjel);
    EXPECT_EQ(distance(u"elefant", u"elephant", nyelv::angol), cost::hangjel);
}

/// The plain way: the whole matrix, as many rows as the text has letters.
int plain_distance(const QByteArray &text, const QByteArray &word, nyelv language) {
    const auto rows = static_cast<size_t>(text.size());
    const auto columns = static_cast<size_t>(word.size());
    const bool bare_text = std::ranges::all_of(text, [](char c) { return betűk::ékezettelen(c) == betűk::kicsi(c); });
    const auto at = [](const QByteArray &of, size_t place) { return of[static_cast<qsizetype>(place)]; };
    const auto instead = [&](char from, char to) {
        const int full = cost::helyettesítés(from, to, language);
        const bool accent = betűk::ékezettelen(from) == betűk::ékezettelen(to);
        return full > 0 && accent && bare_text ? std::min(full, cost::ékezet_nélkül) : full;
    };
    const auto alone = [&](const QByteArray &of, size_t place) {
        if (betűk::mellékes(at(of, place)))
            return cost::mellékes;
        const auto is = [&](size_t other) {
            return other < static_cast<size_t>(of.size()) &&
                   betűk::ékezettelen(at(of, other)) == betűk::ékezettelen(at(of, place));
        };
        if ((place > 0 && is(place - 1)) || is(place + 1))
            return cost::kettőzés;
        return place == 0 ? cost::betű + cost::elöl : cost::betű;
    };
    const auto ends = [&](const QByteArray &of, size_t end, QByteArrayView with) {
        QByteArray small;
        for (size_t i = 0; i < end; ++i)
            small.append(betűk::kicsi(at(of, i)));
        return small.endsWith(with);
    };
    std::vector<std::vector<int>> matrix(rows + 1, std::vector<int>(columns + 1, 0));
    for (size_t i = 0; i <= rows; ++i) {
        for (size_t j = 0; j <= columns; ++j) {
            std::vector<int> ways;
            if (i == 0 && j == 0)
                ways.push_back(0);
            if (i > 0)
                ways.push_back(matrix[i - 1][j] + alone(text, i - 1));
            if (j > 0)
                ways.push_back(matrix[i][j - 1] + alone(word, j - 1));
            if (i > 0 && j > 0) {
                int other = instead(at(text, i - 1), at(word, j - 1));
                if (other >= cost::hasonló && (i == 1 || j == 1))
                    other += cost::elöl;
                ways.push_back(matrix[i - 1][j - 1] + other);
            }
            if (i > 1 && j > 1) {
                const int crossed =
                    instead(at(text, i - 1), at(word, j - 2)) + instead(at(text, i - 2), at(word, j - 1));
                if (crossed < cost::hasonló && instead(at(text, i - 1), at(word, j - 1)) != 0)
                    ways.push_back(matrix[i - 2][j - 2] + cost::csere + crossed);
            }
            const char *two = language == nyelv::magyar ? "ly" : "ph";
            const char *one = language == nyelv::magyar ? "j" : "f";
            if (i > 1 && j > 0 && ends(text, i, two) && ends(word, j, one))
                ways.push_back(matrix[i - 2][j - 1] + cost::hangjel);
            if (i > 0 && j > 1 && ends(text, i, one) && ends(word, j, two))
                ways.push_back(matrix[i - 1][j - 2] + cost::hangjel);
            matrix[i][j] = *std::ranges::min_element(ways);
        }
    }
    return matrix[rows][columns];
}

class RandomWords final {
  public:
    explicit RandomWords(const char16_t *letters) : letters_(cp1250(letters)) {}

    QByteArray next() {
        QByteArray word;
        for (auto left = random_() % 11; left > 0; --left)
            word.append(letters_[static_cast<qsizetype>(random_() % static_cast<unsigned>(letters_.size()))]);
        return word;
    }

    /// The word with up to three letters changed.
    QByteArray changed(QByteArray word) {
        for (auto left = random_() % 4; left > 0 && !word.isEmpty(); --left) {
            const auto at = static_cast<qsizetype>(random_() % static_cast<unsigned>(word.size()));
            const char letter = letters_[static_cast<qsizetype>(random_() % static_cast<unsigned>(letters_.size()))];
            switch (random_() % 4) {
                case 0:
                    word[at] = letter;
                    break;
                case 1:
                    word.insert(at, letter);
                    break;
                case 2:
                    word.remove(at, 1);
                    break;
                default:
                    if (at > 0)
                        std::swap(word[at], word[at - 1]);
            }
        }
        return word;
    }

  private:
    QByteArray letters_;
    std::mt19937 random_{20230415};
};

TEST(EditDistance, is_that_of_the_plain_matrix_within_every_bound) {
    for (const nyelv language : {nyelv::angol, nyelv::magyar}) {
        for (const char16_t *letters : {u"abély jpfh", u"öőoüűaálykj-'A", u"abcdefghijklmnopqrstuvwxyz"}) {
            RandomWords words(letters);
            for (int i = 0; i < 4000; ++i) {
                const QByteArray text = words.next();
                const QByteArray word = i % 2 == 0 ? words.changed(text) : words.next();
                const int plain = plain_distance(text, word, language);
                for (const int bound : {0, 7, 13, 20, 24, 1000}) {
                    const int found = eltérésmérő(text, language).mér(word, bound);
                    ASSERT_EQ(found <= bound, plain <= bound)
                        << text.toHex().toStdString() << ' ' << word.toHex().toStdString() << ' ' << bound;
                    if (plain <= bound) {
                        ASSERT_EQ(found, plain) << text.toHex().toStdString() << ' ' << word.toHex().toStdString();
                    }
                }
            }
        }
    }
}

TEST(EditDistance, of_words_within_a_bound_changes_no_more_letters_than_their_sets_may_differ) {
    for (const nyelv language : {nyelv::angol, nyelv::magyar}) {
        RandomWords words(u"abélyjkpfh");
        for (int i = 0; i < 20000; ++i) {
            const QByteArray text = words.next();
            const QByteArray word = words.changed(text);
            const eltérésmérő measured(text, language);
            const int bound = measured.szokásos_határ();
            if (bound == 0 || measured.mér(word, bound) > bound)
                continue;
            const int most = eltérésmérő::legnagyobb_többlet(bound);
            const int more = betűk::többlet(betűk::halmaza(text), betűk::halmaza(word));
            const int fewer = betűk::többlet(betűk::halmaza(word), betűk::halmaza(text));
            ASSERT_LE(more + fewer, eltérésmérő::legnagyobb_eltérés(bound))
                << text.toHex().toStdString() << ' ' << word.toHex().toStdString();
            ASSERT_LE(std::max(more, fewer), most) << text.toHex().toStdString() << ' ' << word.toHex().toStdString();
        }
    }
}

}  // namespace
