#include "dictionary/dictionary_search.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/dictionary_for_tests.h"
#include "support/memory_source.h"
#include "support/printing.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

MemorySource english() {
    return MemorySource(dictionary_of({"goal:g\xf3l\xf7", "goat:kecske\xf7", "to go:megy\xf7j\xe1r\xf7", "go:menet\xf7",
                                       "go ahead:rajta\xf7", "gnat:sz\xfanyog\xf7", "apple:alma\xf7", "dog:kutya\xf7",
                                       "to goad:\xf6szt\xf6k\xe9l\xf7", "zebra:zebra\xf7"}));
}

TEST(DictionarySearch, finds_headwords_with_and_without_to_in_file_order) {
    MemorySource source = english();

    const Found found = find_in(source, "go");

    EXPECT_THAT(found.headwords, ElementsAre("go ahead", "to go", "go", "to goad", "goal", "goat"));
    EXPECT_EQ(found.end.darab, 6);
    EXPECT_FALSE(found.end.megszakadt);
}

TEST(DictionarySearch, gives_the_meanings_field_of_each_hit) {
    MemorySource source = english();

    EXPECT_THAT(find_in(source, "goa").meanings, ElementsAre("\xf6szt\xf6k\xe9l\xf7", "g\xf3l\xf7", "kecske\xf7"));
}

TEST(DictionarySearch, selects_the_exact_hit_and_not_the_first) {
    MemorySource source = english();

    const Found found = find_in(source, "go");

    EXPECT_EQ(found.headwords.at(found.end.kijelölendő), "go");
}

TEST(DictionarySearch, selects_the_hit_with_to_when_there_is_none_without) {
    MemorySource source(dictionary_of({"to learn:tanul\xf7", "learned:tanult\xf7", "learn by heart:megtanul\xf7"}));

    const Found found = find_in(source, "learn");

    EXPECT_EQ(found.headwords.at(found.end.kijelölendő), "to learn");
}

TEST(DictionarySearch, selects_the_later_of_two_exact_hits) {
    MemorySource source(dictionary_of({"set:egy\xf7", "set:kett\xf5\xf7", "settle:h\xe1rom\xf7"}));

    EXPECT_EQ(find_in(source, "set").end.kijelölendő, 1);
}

TEST(DictionarySearch, takes_the_part_before_the_first_comma_for_the_exact_hit) {
    MemorySource source(dictionary_of({"colour, color:sz\xedn\xf7", "colour bar:fajv\xe1laszt\xe1s\xf7"}));

    const Found found = find_in(source, "colour");

    EXPECT_EQ(found.headwords.at(found.end.kijelölendő), "colour, color");
}

TEST(DictionarySearch, prefers_the_whole_headword_to_the_part_before_a_comma) {
    MemorySource source(dictionary_of({"bare,x:a\xf7", "bare:b\xf7"}));

    const Found found = find_in(source, "bare");

    EXPECT_EQ(found.headwords.at(found.end.kijelölendő), "bare");
}

TEST(DictionarySearch, selects_the_first_hit_when_none_is_exact) {
    MemorySource source = english();

    EXPECT_EQ(find_in(source, "goa").end.kijelölendő, 0);
}

TEST(DictionarySearch, has_nothing_to_select_without_a_hit) {
    MemorySource source = english();

    const Found found = find_in(source, "xyz");

    EXPECT_EQ(found.end.darab, 0);
    EXPECT_EQ(found.end.kijelölendő, -1);
}

TEST(DictionarySearch, tells_small_letters_from_capitals) {
    MemorySource source = english();

    EXPECT_THAT(find_in(source, "Go").headwords, IsEmpty());
}

TEST(DictionarySearch, finds_the_first_and_the_last_entry) {
    MemorySource source = english();

    EXPECT_THAT(find_in(source, "apple").headwords, ElementsAre("apple"));
    EXPECT_THAT(find_in(source, "zebra").headwords, ElementsAre("zebra"));
}

TEST(DictionarySearch, never_finds_the_first_line) {
    MemorySource source("apple:alma\xf7\r\napple pie:almatorta\xf7\r\n");

    EXPECT_THAT(find_in(source, "apple").headwords, ElementsAre("apple pie"));
}

TEST(DictionarySearch, examines_one_line_for_a_text_that_begins_with_to_when_its_caller_compares_with_the_key) {
    MemorySource source = english();
    int lines = 0;

    const keresésvége end = szótárkereső(source).keres("to go", {[](const szócikk &) {}, [&] { return ++lines > 0; }});

    EXPECT_TRUE(end.megszakadt);
    EXPECT_EQ(lines, 1);
}

TEST(DictionarySearch, asks_its_caller_after_each_line_hit_or_not) {
    // From "apple" on all lines are within the walk's reach, so the scan starts at the first entry.
    MemorySource source(dictionary_of({"apple:alma\xf7", "dog:kutya\xf7", "no colon", "zebra:zebra\xf7"}));
    int lines = 0;

    const keresésvége end = szótárkereső(source).keres("zebra", {[](const szócikk &) {},
                                                                 [&] {
                                                                     ++lines;
                                                                     return false;
                                                                 }});

    EXPECT_EQ(lines, 4);
    EXPECT_EQ(end.darab, 1);
}

TEST(DictionarySearch, stops_where_its_caller_says) {
    MemorySource source = english();

    const Found found = find_in(source, "go", 2);

    EXPECT_TRUE(found.end.megszakadt);
    EXPECT_LE(found.headwords.size(), 3);
}

TEST(DictionarySearch, finds_hits_among_lines_that_are_longer_than_its_slack) {
    QByteArrayList entries;
    for (char letter = 'a'; letter <= 'z'; ++letter)
        entries.append(QByteArray(1, letter) + "word:" + QByteArray(1000, 'x') + "\xf7");
    MemorySource source(dictionary_of(entries));

    for (char letter = 'a'; letter <= 'z'; ++letter) {
        const QByteArray text = QByteArray(1, letter) + "w";
        EXPECT_THAT(find_in(source, text).headwords, ElementsAre(QByteArray(1, letter) + "word"));
    }
}

TEST(DictionarySearch, equals_brute_force_on_small_dictionaries_of_every_size) {
    QByteArrayList entries;
    for (int size = 1; size < 60; ++size) {
        entries.append(QByteArray(size % 3 == 0 ? "to " : "") + static_cast<char>('a' + size % 7) +
                       QByteArray::number(size * 37 % 101) + ":" + QByteArray(size % 90, 'm') + "\xf7");
        const QByteArray bytes = dictionary_of(entries);
        for (const char *text : {"a", "b", "c1", "d", "e5", "f", "g"}) {
            MemorySource source(bytes);
            EXPECT_EQ(find_in(source, text).headwords, brute_force(headwords_of(bytes), text))
                << size << " entries, " << text;
        }
    }
}

}  // namespace
