#include "word_lists/word_list_source.h"

#include <gtest/gtest.h>

#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

using word_lists::Source;

Source parsed(const char *text) {
    const auto result = word_lists::parse(text, u"family.txt"_s);
    const auto *source = std::get_if<Source>(&result);
    EXPECT_NE(source, nullptr);
    return source ? *source : Source{};
}

QString reason(const char *text) {
    const auto result = word_lists::parse(text, u"family.txt"_s);
    const auto *failure = std::get_if<Failure>(&result);
    EXPECT_NE(failure, nullptr);
    return failure ? failure->sentence : QString();
}

TEST(WordListSource, has_a_name_and_pairs_in_their_order) {
    const Source source = parsed("name: A2 Család\nmother | anya\nfather | apa, édesapa\n");

    EXPECT_EQ(source.name, u"A2 Család"_s);
    EXPECT_EQ(source.pairs, QVector<szópár>({{u"mother"_s, u"anya"_s}, {u"father"_s, u"apa, édesapa"_s}}));
}

TEST(WordListSource, passes_over_blank_lines_and_remarks) {
    EXPECT_EQ(parsed("# A remark\n\nname: A2 Család\n\n# Another\nmother | anya\n").pairs.size(), 1);
}

TEST(WordListSource, keeps_why_the_dictionary_does_not_have_a_pair) {
    const Source source = parsed("name: A2 Társalgás\nHow are you? | Hogy vagy? | a sentence\nbye | viszlát\n");

    EXPECT_EQ(source.reasons, QStringList({u"a sentence"_s, QString()}));
}

TEST(WordListSource, tells_the_line_of_a_pair_without_a_side) {
    EXPECT_EQ(reason("name: A2 Család\nmother\n"),
              u"A(z) „family.txt” fájl 2. sorában nem „angol | magyar” vagy „angol | magyar | indok” áll."_s);
    EXPECT_EQ(reason("name: A2 Család\n | anya\n"),
              u"A(z) „family.txt” fájl 2. sorában nem „angol | magyar” vagy „angol | magyar | indok” áll."_s);
}

TEST(WordListSource, tells_the_line_of_a_word_that_was_there_before) {
    EXPECT_EQ(reason("name: A2 Család\nmother | anya\nmother | mama\n"),
              u"A(z) „family.txt” fájl 3. sorában olyan szó áll, amely már volt."_s);
    EXPECT_EQ(reason("name: A2 Család\nmother | anya\nmum | anya\n"),
              u"A(z) „family.txt” fájl 3. sorában olyan szó áll, amely már volt."_s);
}

TEST(WordListSource, needs_a_name_that_can_be_a_files) {
    for (const char *text : {"mother | anya\n", "name: A2. Család\n", "name: A2/Család\n", "name: \n"})
        EXPECT_TRUE(reason(text).startsWith(u"A(z) „family.txt” fájl 1. sorában nem a lista neve áll"_s)) << text;
}

TEST(WordListSource, refuses_an_english_text_that_a_list_cannot_hold) {
    EXPECT_TRUE(reason("name: A2 Család\nmother: | anya\n").startsWith(u"A(z) „family.txt” fájl 2. sorában"_s));
}

TEST(WordListSource, without_a_pair_or_in_another_coding_is_told) {
    EXPECT_EQ(reason("name: A2 Család\n"), u"A(z) „family.txt” fájlban nincs egyetlen pár sem."_s);
    EXPECT_EQ(reason("name: A2 Csal\xe1"
                     "d\n"),
              u"A(z) „family.txt” fájl nem UTF-8 kódolású."_s);
}

}  // namespace
