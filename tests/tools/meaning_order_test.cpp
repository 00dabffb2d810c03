#include "freedict/meaning_order.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using freedict::Entry;
using freedict::Language;
using freedict::Lexicon;
using freedict::MeaningFeatures;
using freedict::OutsideKnowledge;
using freedict::PlacedMeaning;

/// A dictionary whose phrases tell that a book is above all a "könyv".
Lexicon sample() {
    return {{{u"book"_s, {u"librettó"_s, u"könyv"_s, u"jegyzék"_s, u"segg"_s, u"könyv (fiókban)"_s}},
             {u"book review"_s, {u"könyvismertetés"_s}},
             {u"review"_s, {u"ismertetés"_s}},
             {u"school book"_s, {u"iskolai könyv"_s}},
             {u"old book"_s, {u"régi könyv"_s}},
             {u"old list"_s, {u"régi jegyzék"_s}},
             {u"list"_s, {u"jegyzék"_s}},
             {u"to list"_s, {u"jegyzék"_s, u"felsorol"_s}},
             {u"to list names"_s, {u"neveket felsorol"_s}},
             {u"to list reasons"_s, {u"okokat felsorol"_s}},
             {u"to name"_s, {u"felsorol"_s}}},
            {}};
}

QVector<PlacedMeaning> placed(const Entry &entry, const Lexicon &lexicon = sample()) {
    const auto pairs = freedict::word_pairs(lexicon.english, lexicon.hungarian);
    const OutsideKnowledge outside;
    const MeaningFeatures features(pairs, outside);
    return freedict::placed_meanings(features, Language::english, entry);
}

QStringList meanings_of(const QVector<PlacedMeaning> &placed) {
    QStringList meanings;
    for (const PlacedMeaning &one : placed)
        meanings.append(one.meaning);
    return meanings;
}

TEST(MeaningOrder, the_meaning_that_the_phrases_speak_for_stands_first) {
    const QVector<PlacedMeaning> order = placed(sample().english[0]);

    EXPECT_EQ(order.first().meaning, u"könyv"_s);
}

TEST(MeaningOrder, a_verbs_first_meaning_is_a_verb) {
    const QVector<PlacedMeaning> order = placed(sample().english[7]);

    EXPECT_EQ(order.first().meaning, u"felsorol"_s);
}

TEST(MeaningOrder, no_meaning_is_lost_or_doubled) {
    const Entry entry = sample().english[0];

    QStringList before = entry.meanings;
    QStringList after = meanings_of(placed(entry));
    before.sort();
    after.sort();

    EXPECT_EQ(after, before);
}

TEST(MeaningOrder, a_coarse_meaning_stands_last) {
    const QVector<PlacedMeaning> order = placed(sample().english[0]);

    EXPECT_EQ(order.last().meaning, u"segg"_s);
    EXPECT_TRUE(order.last().coarse);
}

TEST(MeaningOrder, what_is_fixed_stands_in_front_as_it_was) {
    Entry entry = sample().english[0];
    entry.fixed = 1;

    const QVector<PlacedMeaning> order = placed(entry);

    EXPECT_EQ(order[0].meaning, u"librettó"_s);
    EXPECT_EQ(order[0].group, 0);
    EXPECT_EQ(order[1].meaning, u"könyv"_s);
}

TEST(MeaningOrder, a_score_is_the_sum_of_what_the_features_add) {
    for (const PlacedMeaning &one : placed(sample().english[0])) {
        double sum = 0;
        for (const double added : one.added)
            sum += added;
        EXPECT_DOUBLE_EQ(one.score, sum);
    }
}

TEST(MeaningOrder, meanings_of_equal_score_stay_as_they_were) {
    const Lexicon lexicon{{{u"word"_s, {u"bbb"_s, u"aaa"_s, u"ccc"_s}}}, {}};

    const QVector<PlacedMeaning> order = placed(lexicon.english[0], lexicon);

    EXPECT_EQ(order[0].score, order[1].score);
    EXPECT_EQ(meanings_of(order), lexicon.english[0].meanings);
}

}  // namespace
