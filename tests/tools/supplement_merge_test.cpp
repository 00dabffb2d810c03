#include "freedict/supplement_merge.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using freedict::Entry;
using freedict::Language;
using freedict::Lexicon;
using freedict::Supplement;

Supplement supplement_of(const QByteArray &english, const QByteArray &hungarian = {}) {
    return {std::get<0>(freedict::parse_supplement(english, u"e"_s, Language::english)),
            std::get<0>(freedict::parse_supplement(hungarian, u"h"_s, Language::hungarian))};
}

Lexicon sample() {
    return {{{u"book"_s, {u"rész"_s, u"könyv"_s}},
             {u"to go, went, gone"_s, {u"működik"_s}},
             {u"to lie, lay, lain"_s, {u"fekszik"_s}},
             {u"to lie, lied"_s, {u"füllent"_s, u"hazudik"_s}}},
            {{u"könyv"_s, {u"volume"_s, u"book"_s}}, {u"működik"_s, {u"to work"_s, u"to go, went, gone"_s}}}};
}

const Entry &entry_of(const QVector<Entry> &entries, const QString &headword) {
    static const Entry none;
    const auto found = std::ranges::find(entries, headword, &Entry::headword);
    EXPECT_NE(found, entries.end()) << qPrintable(headword);
    return found == entries.end() ? none : *found;
}

std::string meanings(const QVector<Entry> &entries, const QString &headword) {
    return entry_of(entries, headword).meanings.join(u'|').toStdString();
}

TEST(SupplementMerge, meanings_go_in_front_and_stand_once) {
    Lexicon lexicon = sample();

    merge_supplement(lexicon, supplement_of("book | noun | könyv; kötet\n"));

    EXPECT_EQ(meanings(lexicon.english, u"book"_s), "könyv|kötet|rész");
    EXPECT_EQ(entry_of(lexicon.english, u"book"_s).fixed, 2);
}

TEST(SupplementMerge, a_new_headword_makes_an_entry) {
    Lexicon lexicon = sample();

    const auto merged = merge_supplement(lexicon, supplement_of("Monday | noun | hétfő <<\n"));

    EXPECT_EQ(meanings(lexicon.english, u"Monday"_s), "hétfő");
    EXPECT_EQ(meanings(lexicon.hungarian, u"hétfő"_s), "Monday");
    EXPECT_EQ(merged.english, (freedict::Added{.entries = 1, .meanings = 1}));
    EXPECT_EQ(merged.hungarian, (freedict::Added{.entries = 1, .meanings = 1}));
}

TEST(SupplementMerge, what_leads_back_in_front_stands_before_the_others_and_what_only_leads_back_is_there) {
    Lexicon lexicon = sample();

    merge_supplement(lexicon, supplement_of("book | noun | könyv <<\nnotebook | noun | könyv <\n"));

    EXPECT_EQ(meanings(lexicon.hungarian, u"könyv"_s), "book|volume|notebook");
    EXPECT_EQ(entry_of(lexicon.hungarian, u"könyv"_s).fixed, 0);
    EXPECT_EQ(entry_of(lexicon.hungarian, u"könyv"_s).led, 1);
}

TEST(SupplementMerge, an_entrys_own_line_stands_before_what_leads_back) {
    Lexicon lexicon = sample();

    merge_supplement(lexicon, supplement_of("book | noun | könyv <<\n", "könyv | noun | volume\n"));

    EXPECT_EQ(meanings(lexicon.hungarian, u"könyv"_s), "volume|book");
}

TEST(SupplementMerge, a_verb_is_found_with_its_further_forms_and_stands_with_them_in_the_other_direction) {
    Lexicon lexicon = sample();

    const auto merged = merge_supplement(lexicon, supplement_of("to go | verb | megy <<; működik <\n"));

    EXPECT_EQ(meanings(lexicon.english, u"to go, went, gone"_s), "megy|működik");
    EXPECT_EQ(meanings(lexicon.hungarian, u"megy"_s), "to go, went, gone");
    EXPECT_EQ(meanings(lexicon.hungarian, u"működik"_s), "to work|to go, went, gone");
    EXPECT_EQ(merged.english.entries, 0);
}

TEST(SupplementMerge, verbs_of_different_forms_get_none_of_each_others_meanings) {
    Lexicon lexicon = sample();

    merge_supplement(lexicon, supplement_of("to lie | verb | hazudik; fekszik\n"));

    EXPECT_EQ(meanings(lexicon.english, u"to lie, lay, lain"_s), "fekszik");
    EXPECT_EQ(meanings(lexicon.english, u"to lie, lied"_s), "hazudik|füllent");
}

TEST(SupplementMerge, an_empty_supplement_changes_nothing) {
    Lexicon lexicon = sample();

    const auto merged = merge_supplement(lexicon, {});

    EXPECT_EQ(lexicon.english, sample().english);
    EXPECT_EQ(lexicon.hungarian, sample().hungarian);
    EXPECT_EQ(merged.english, freedict::Added());
}

}  // namespace
