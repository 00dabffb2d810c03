#include <gtest/gtest.h>

#include "freedict/coarse_words.h"
#include "freedict/spelling_likeness.h"
#include "freedict/word_parts.h"
#include "freedict/words_of.h"

using namespace Qt::StringLiterals;

namespace {

using freedict::Language;
using freedict::words_of;

TEST(WordsOf, a_verbs_to_is_a_word_of_its_own) {
    EXPECT_EQ(words_of(u"to go to bed"_s, Language::english), (QStringList{u"to "_s, u"go"_s, u"to"_s, u"bed"_s}));
}

TEST(WordsOf, what_stands_in_brackets_is_left_out_unless_nothing_else_is_there) {
    EXPECT_EQ(words_of(u"bank (pénzintézet) ablak"_s, Language::hungarian), (QStringList{u"bank"_s, u"ablak"_s}));
    EXPECT_EQ(words_of(u"(hang)"_s, Language::hungarian), QStringList{u"hang"_s});
}

TEST(BaseForm, the_further_forms_of_a_verb_and_of_a_noun_are_left_out) {
    EXPECT_EQ(freedict::base_form(u"to go, went, gone"_s, Language::english), u"to go"_s);
    EXPECT_EQ(freedict::base_form(u"foot, feet"_s, Language::english), u"foot"_s);
    EXPECT_EQ(freedict::further_forms(u"to go, went, gone"_s, Language::english), (QStringList{u"went"_s, u"gone"_s}));
}

TEST(BaseForm, the_comma_of_a_sentence_and_of_hungarian_stays) {
    for (const QString &text : {u"hip, hip, hurray"_s, u"no, thank you"_s})
        EXPECT_EQ(freedict::base_form(text, Language::english).contains(u','), text.startsWith(u'n'));
    EXPECT_EQ(freedict::base_form(u"-ban, -ben"_s, Language::hungarian), u"-ban, -ben"_s);
}

TEST(WordParts, endings_come_off_words_that_are_no_headwords) {
    freedict::WordParts english(Language::english);
    english.add({u"to "_s, u"walk"_s});
    english.add({u"to "_s, u"stop"_s});
    english.add({u"city"_s});
    english.add_form(u"went"_s, u"go"_s);

    EXPECT_EQ(english.parts_of(u"walked"_s), QStringList{u"walk"_s});
    EXPECT_EQ(english.parts_of(u"stopping"_s), QStringList{u"stop"_s});
    EXPECT_EQ(english.parts_of(u"cities"_s), QStringList{u"city"_s});
    EXPECT_EQ(english.parts_of(u"went"_s), QStringList{u"go"_s});
    EXPECT_EQ(english.parts_of(u"bus"_s), QStringList{u"bus"_s});
}

TEST(WordParts, a_hungarian_compound_falls_into_its_headwords) {
    freedict::WordParts hungarian(Language::hungarian);
    for (const char *word :
         {"könyv", "könyv", "ismertetés", "ismertetés", "alma", "meg", "meg", "néz", "néz", "megnéz"})
        hungarian.add({QString::fromUtf8(word)});

    EXPECT_EQ(hungarian.parts_of(u"könyvismertetés"_s), (QStringList{u"könyv"_s, u"ismertetés"_s}));
    EXPECT_EQ(hungarian.parts_of(u"megnéz"_s), (QStringList{u"meg"_s, u"néz"_s}));
    EXPECT_EQ(hungarian.parts_of(u"almát"_s), QStringList{u"alma"_s});
}

TEST(CoarseWords, are_told_from_harmless_words_that_look_like_them) {
    EXPECT_TRUE(freedict::is_coarse(u"nagy szarház"_s, Language::hungarian) == false);
    EXPECT_TRUE(freedict::is_coarse(u"to shit oneself"_s, Language::english));
    EXPECT_TRUE(freedict::is_coarse(u"farok (vulgáris)"_s, Language::hungarian));
    for (const char *word : {"szarv", "szarvas", "kúra", "foszlány", "segítség", "dugó", "fasírt", "szarka"})
        EXPECT_FALSE(freedict::is_coarse(QString::fromUtf8(word), Language::hungarian)) << word;
    for (const char *word : {"cock", "class", "assistant", "cocktail", "title", "pier"})
        EXPECT_FALSE(freedict::is_coarse(QString::fromUtf8(word), Language::english)) << word;
}

TEST(SpellingLikeness, foreign_words_are_like_in_both_languages) {
    EXPECT_DOUBLE_EQ(freedict::spelling_likeness(u"to stop"_s, u"stop"_s), 0.6);
    EXPECT_GT(freedict::spelling_likeness(u"crystal"_s, u"kristály"_s), 0.4);
    EXPECT_EQ(freedict::spelling_likeness(u"glass"_s, u"kristály"_s), 0);
}

}  // namespace
