#include <gtest/gtest.h>

#include "freedict/coarse_words.h"
#include "freedict/spelling_likeness.h"
#include "freedict/word_parts.h"
#include "freedict/words_of.h"

namespace {

using freedict::Language;
using freedict::words_of;

TEST(WordsOf, a_verbs_to_is_a_word_of_its_own) {
    EXPECT_EQ(words_of(QStringLiteral("to go to bed"), Language::english),
              (QStringList{QStringLiteral("to "), QStringLiteral("go"), QStringLiteral("to"), QStringLiteral("bed")}));
}

TEST(WordsOf, what_stands_in_brackets_is_left_out_unless_nothing_else_is_there) {
    EXPECT_EQ(words_of(QStringLiteral("bank (pénzintézet) ablak"), Language::hungarian),
              (QStringList{QStringLiteral("bank"), QStringLiteral("ablak")}));
    EXPECT_EQ(words_of(QStringLiteral("(hang)"), Language::hungarian), QStringList{QStringLiteral("hang")});
}

TEST(BaseForm, the_further_forms_of_a_verb_and_of_a_noun_are_left_out) {
    EXPECT_EQ(freedict::base_form(QStringLiteral("to go, went, gone"), Language::english), QStringLiteral("to go"));
    EXPECT_EQ(freedict::base_form(QStringLiteral("foot, feet"), Language::english), QStringLiteral("foot"));
    EXPECT_EQ(freedict::further_forms(QStringLiteral("to go, went, gone"), Language::english),
              (QStringList{QStringLiteral("went"), QStringLiteral("gone")}));
}

TEST(BaseForm, the_comma_of_a_sentence_and_of_hungarian_stays) {
    for (const QString &text : {QStringLiteral("hip, hip, hurray"), QStringLiteral("no, thank you")})
        EXPECT_EQ(freedict::base_form(text, Language::english).contains(u','), text.startsWith(u'n'));
    EXPECT_EQ(freedict::base_form(QStringLiteral("-ban, -ben"), Language::hungarian), QStringLiteral("-ban, -ben"));
}

TEST(WordParts, endings_come_off_words_that_are_no_headwords) {
    freedict::WordParts english(Language::english);
    english.add({QStringLiteral("to "), QStringLiteral("walk")});
    english.add({QStringLiteral("to "), QStringLiteral("stop")});
    english.add({QStringLiteral("city")});
    english.add_form(QStringLiteral("went"), QStringLiteral("go"));

    EXPECT_EQ(english.parts_of(QStringLiteral("walked")), QStringList{QStringLiteral("walk")});
    EXPECT_EQ(english.parts_of(QStringLiteral("stopping")), QStringList{QStringLiteral("stop")});
    EXPECT_EQ(english.parts_of(QStringLiteral("cities")), QStringList{QStringLiteral("city")});
    EXPECT_EQ(english.parts_of(QStringLiteral("went")), QStringList{QStringLiteral("go")});
    EXPECT_EQ(english.parts_of(QStringLiteral("bus")), QStringList{QStringLiteral("bus")});
}

TEST(WordParts, a_hungarian_compound_falls_into_its_headwords) {
    freedict::WordParts hungarian(Language::hungarian);
    for (const char *word :
         {"könyv", "könyv", "ismertetés", "ismertetés", "alma", "meg", "meg", "néz", "néz", "megnéz"})
        hungarian.add({QString::fromUtf8(word)});

    EXPECT_EQ(hungarian.parts_of(QStringLiteral("könyvismertetés")),
              (QStringList{QStringLiteral("könyv"), QStringLiteral("ismertetés")}));
    EXPECT_EQ(hungarian.parts_of(QStringLiteral("megnéz")),
              (QStringList{QStringLiteral("meg"), QStringLiteral("néz")}));
    EXPECT_EQ(hungarian.parts_of(QStringLiteral("almát")), QStringList{QStringLiteral("alma")});
}

TEST(CoarseWords, are_told_from_harmless_words_that_look_like_them) {
    EXPECT_TRUE(freedict::is_coarse(QStringLiteral("nagy szarház"), Language::hungarian) == false);
    EXPECT_TRUE(freedict::is_coarse(QStringLiteral("to shit oneself"), Language::english));
    EXPECT_TRUE(freedict::is_coarse(QStringLiteral("farok (vulgáris)"), Language::hungarian));
    for (const char *word : {"szarv", "szarvas", "kúra", "foszlány", "segítség", "dugó", "fasírt", "szarka"})
        EXPECT_FALSE(freedict::is_coarse(QString::fromUtf8(word), Language::hungarian)) << word;
    for (const char *word : {"cock", "class", "assistant", "cocktail", "title", "pier"})
        EXPECT_FALSE(freedict::is_coarse(QString::fromUtf8(word), Language::english)) << word;
}

TEST(SpellingLikeness, foreign_words_are_like_in_both_languages) {
    EXPECT_DOUBLE_EQ(freedict::spelling_likeness(QStringLiteral("to stop"), QStringLiteral("stop")), 0.6);
    EXPECT_GT(freedict::spelling_likeness(QStringLiteral("crystal"), QStringLiteral("kristály")), 0.4);
    EXPECT_EQ(freedict::spelling_likeness(QStringLiteral("glass"), QStringLiteral("kristály")), 0);
}

}  // namespace
