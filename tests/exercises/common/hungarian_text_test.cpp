#include "exercises/common/hungarian_text.h"

#include <gtest/gtest.h>

#include <functional>

#include "support/letters.h"
#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

QString text_of(const char16_t *text) {
    return QString::fromUtf16(text);
}

/// What an operation of a text makes of a number.
struct Cut {
    int n;
    const char16_t *result;
};

TEST(HungarianText, is_empty_hungarian_and_filled_up_with_blanks_at_first) {
    const kszöveg text;

    EXPECT_EQ(text.value(), QString());
    EXPECT_EQ(text.szövegnyelv(), 2);
    EXPECT_EQ(text.töltelékkarakter(), u" "_s);
    EXPECT_EQ(text.MAGYARBETŰKSZÁMA(), 0);
    EXPECT_EQ(text.lenght(), 0);
}

TEST(HungarianText, keeps_the_text_that_it_is_given) {
    kszöveg text = hungarian(u"alma"_s);
    EXPECT_EQ(text.value(), u"alma"_s);
    EXPECT_EQ(letters_of(text), u"a|l|m|a"_s);

    text.value(u" Két szó, 3. "_s);

    EXPECT_EQ(text.value(), u" Két szó, 3. "_s);
    EXPECT_EQ(letters_of(text), u" |K|é|t| |sz|ó|,| |3|.| "_s);
}

TEST(HungarianText, has_no_letters_when_it_is_empty) {
    kszöveg text = hungarian(u"alma"_s);

    text.value(QString());

    EXPECT_EQ(text.MAGYARBETŰKSZÁMA(), 0);
    EXPECT_EQ(text.VesszősSzöveg(), u","_s);
    EXPECT_EQ(text.magyarleft(3), QString());
    EXPECT_EQ(text.magyarright(3), QString());
}

TEST(HungarianText, takes_its_language_by_number) {
    const struct {
        int before, given, after;
    } cases[] = {{2, 4, 4}, {4, 2, 2}, {2, 2, 2}, {4, 4, 4},  {2, 0, 2},  {4, 0, 4},  {2, 1, 2},
                 {4, 1, 4}, {2, 3, 2}, {4, 3, 4}, {2, -4, 2}, {4, -2, 4}, {2, 24, 2}, {4, 42, 4}};
    for (const auto &one : cases) {
        kszöveg text;
        text.szövegnyelv(one.before);

        text.szövegnyelv(one.given);

        EXPECT_EQ(text.szövegnyelv(), one.after) << one.given << " after " << one.before;
    }
}

TEST(HungarianText, takes_its_language_by_name_in_any_case) {
    const struct {
        int before;
        const char16_t *given;
        int after;
    } cases[] = {{4, u"magyar", 2}, {4, u"MAGYAR", 2},  {4, u"Magyar", 2},  {4, u"mAGYAr", 2},   {2, u"angol", 4},
                 {2, u"ANGOL", 4},  {2, u"Angol", 4},   {2, u"english", 4}, {2, u"English", 4},  {2, u"ENGLISH", 4},
                 {2, u"magyar", 2}, {4, u"english", 4}, {2, u"német", 2},   {4, u"német", 4},    {4, u"hungarian", 4},
                 {2, u"", 2},       {4, u"", 4},        {2, u" angol", 2},  {4, u"magyarul", 4}, {2, u"ángol", 2}};
    for (const auto &one : cases) {
        kszöveg text;
        text.szövegnyelv(one.before);

        text.szövegnyelv(text_of(one.given));

        EXPECT_EQ(text.szövegnyelv(), one.after) << text_of(one.given).toStdString() << " after " << one.before;
    }
}

TEST(HungarianText, gives_letters_by_their_places) {
    const kszöveg text = hungarian(u"dzsungel"_s);
    const Cut cases[] = {{1, u"dzs"}, {2, u"u"}, {3, u"n"}, {4, u"g"}, {5, u"e"},
                         {6, u"l"},   {0, u""},  {-1, u""}, {-6, u""}, {-1000, u""}};

    EXPECT_EQ(text.MAGYARBETŰKSZÁMA(), 6);
    for (const auto &[place, letter] : cases)
        EXPECT_EQ(text.szóbetűje(place), text_of(letter)) << place;
}

TEST(HungarianText, gives_the_last_letter_for_every_place_past_the_end) {
    const kszöveg text = hungarian(u"lándzsás"_s);

    for (const int place : {7, 8, 1000})
        EXPECT_EQ(text.szóbetűje(place), u"s"_s) << place;
    EXPECT_EQ(hungarian(u"rizs"_s).szóbetűje(9), u"zs"_s);
    EXPECT_EQ(kszöveg().szóbetűje(1), QString());
}

TEST(HungarianText, knows_all_fourteen_vowels) {
    const kszöveg vowels = hungarian(u"aáeéiíoóöőuúüű"_s);

    ASSERT_EQ(vowels.MAGYARBETŰKSZÁMA(), 14);
    for (int i = 1; i <= 14; ++i)
        EXPECT_TRUE(vowels.EzabetűMagánhangzóE(i)) << i;
}

TEST(HungarianText, takes_no_capital_for_a_vowel) {
    const kszöveg capitals = hungarian(u"AÁEÉIÍOÓÖŐUÚÜŰ"_s);

    ASSERT_EQ(capitals.MAGYARBETŰKSZÁMA(), 14);
    for (int i = 1; i <= 14; ++i)
        EXPECT_FALSE(capitals.EzabetűMagánhangzóE(i)) << i;
}

TEST(HungarianText, takes_nothing_else_for_a_vowel) {
    for (const char16_t *other : {u"b", u"y", u"cs", u"dzs", u"ä", u"ô", u"î", u"1", u",", u" ", u"_", u""})
        EXPECT_FALSE(hungarian(text_of(other)).EzabetűMagánhangzóE(1)) << text_of(other).toStdString();
}

TEST(HungarianText, looks_for_the_vowel_where_the_letter_is_found) {
    const kszöveg text = hungarian(u"csata"_s);
    const struct {
        int place;
        bool vowel;
    } cases[] = {{1, false}, {2, true}, {3, false}, {4, true}, {5, true}, {99, true}, {0, false}, {-2, false}};

    for (const auto &[place, vowel] : cases)
        EXPECT_EQ(text.EzabetűMagánhangzóE(place), vowel) << place;
}

TEST(HungarianText, begins_with_its_first_letters) {
    const kszöveg text = hungarian(u"csésze"_s);
    const Cut cases[] = {{-1, u""},     {0, u""},       {1, u"cs"},     {2, u"csé"},
                         {3, u"csész"}, {4, u"csésze"}, {5, u"csésze"}, {99, u"csésze"}};

    for (const auto &[n, beginning] : cases)
        EXPECT_EQ(text.magyarleft(n), text_of(beginning)) << n;
}

TEST(HungarianText, ends_with_its_last_letters) {
    const kszöveg text = hungarian(u"csésze"_s);
    const Cut cases[] = {{-1, u""},    {0, u""},       {1, u"e"},      {2, u"sze"},
                         {3, u"észe"}, {4, u"csésze"}, {5, u"csésze"}, {99, u"csésze"}};

    for (const auto &[n, end] : cases)
        EXPECT_EQ(text.magyarright(n), text_of(end)) << n;
}

TEST(HungarianText, has_a_comma_before_its_first_letter_and_after_each) {
    const struct {
        const char16_t *text, *with_commas;
    } cases[] = {{u"", u","},    {u"csak", u",cs,a,k,"}, {u"Csésze", u",Cs,é,sz,e,"},
                 {u"é", u",é,"}, {u"a b", u",a, ,b,"},   {u"a,b", u",a,,,b,"}};

    for (const auto &[text, with_commas] : cases)
        EXPECT_EQ(hungarian(text_of(text)).VesszősSzöveg(), text_of(with_commas));
}

TEST(HungarianText, finds_whole_letters_only) {
    const kszöveg text = hungarian(u"csodaszép"_s);
    for (const char16_t *letter : {u"cs", u"o", u"d", u"a", u"sz", u"é", u"p"})
        EXPECT_TRUE(text.vanebenne(text_of(letter))) << text_of(letter).toStdString();

    for (const char16_t *other : {u"c", u"s", u"z", u"b", u"CS", u"Cs", u"od", u"cso", u"e", u"csodaszép", u""})
        EXPECT_FALSE(text.vanebenne(text_of(other))) << text_of(other).toStdString();
    EXPECT_FALSE(kszöveg().vanebenne(QString()));
}

TEST(HungarianText, stands_behind_its_article) {
    const struct {
        const char16_t *text, *plain, *capital;
    } cases[] = {{u"alma", u"az alma", u"Az alma"},
                 {u"Alma", u"a Alma", u"A Alma"},
                 {u"körte", u"a körte", u"A körte"},
                 {u"őz", u"az őz", u"Az őz"},
                 {u"ív", u"az ív", u"Az ív"},
                 {u"üveg", u"az üveg", u"Az üveg"},
                 {u"csésze", u"a csésze", u"A csésze"},
                 {u"gyár", u"a gyár", u"A gyár"},
                 {u"Éva", u"a Éva", u"A Éva"},
                 {u"5 óra", u"a 5 óra", u"A 5 óra"},
                 {u"", u"a ", u"A "}};

    for (const auto &[text, plain, capital] : cases) {
        EXPECT_EQ(hungarian(text_of(text)).Névelővel(false), text_of(plain));
        EXPECT_EQ(hungarian(text_of(text)).Névelővel(true), text_of(capital));
    }
}

TEST(HungarianText, counts_its_characters_and_not_its_letters) {
    const struct {
        const char16_t *text;
        int length, letters;
    } cases[] = {{u"", 0, 0}, {u"őz", 2, 2}, {u"csésze", 6, 4}, {u"lándzsa", 7, 5}, {u"két szó", 7, 6}};

    for (const auto &one : cases) {
        EXPECT_EQ(hungarian(text_of(one.text)).lenght(), one.length);
        EXPECT_EQ(hungarian(text_of(one.text)).MAGYARBETŰKSZÁMA(), one.letters);
    }
}

TEST(HungarianText, is_cut_at_its_end_or_filled_up_there_to_a_length) {
    const Cut cases[] = {{8, u"abc-----"}, {4, u"abc-"}, {3, u"abc"}, {2, u"ab"}, {1, u"a"}, {0, u""}, {-1, u""}};

    for (const auto &[length, result] : cases) {
        kszöveg text = hungarian(u"abc"_s);
        text.töltelékkarakter(u"-"_s);

        text.lenght(length);

        EXPECT_EQ(text.value(), text_of(result));
    }
}

TEST(HungarianText, is_filled_up_with_blanks_unless_told_otherwise) {
    kszöveg text = hungarian(u"abc"_s);

    text.lenght(5);

    EXPECT_EQ(text.value(), u"abc  "_s);
}

TEST(HungarianText, takes_only_the_first_character_to_fill_up_with) {
    kszöveg text = hungarian(u"abc"_s);

    text.töltelékkarakter(u"*-+"_s);
    text.lenght(5);

    EXPECT_EQ(text.töltelékkarakter(), u"*"_s);
    EXPECT_EQ(text.value(), u"abc**"_s);
}

TEST(HungarianText, grows_by_nothing_without_a_character_to_fill_up_with) {
    kszöveg text = hungarian(u"abc"_s);

    text.töltelékkarakter(QString());
    text.lenght(5);

    EXPECT_EQ(text.value(), u"abc"_s);
}

TEST(HungarianText, loses_characters_at_its_end) {
    const Cut cases[] = {{-1, u"csésze"}, {0, u"csésze"}, {1, u"csész"}, {2, u"csés"},
                         {5, u"c"},       {6, u""},       {7, u""},      {99, u""}};
    for (const auto &[n, rest] : cases) {
        kszöveg text = hungarian(u"csésze"_s);
        EXPECT_EQ(text.jobbrólvágott(n), text_of(rest)) << n;
        EXPECT_EQ(text.value(), u"csésze"_s) << n;

        text.levág_jobbról(n);

        EXPECT_EQ(text.value(), text_of(rest)) << n;
    }
}

TEST(HungarianText, loses_characters_at_its_beginning) {
    const Cut cases[] = {{-1, u"csésze"}, {0, u"csésze"}, {1, u"sésze"}, {2, u"észe"},
                         {5, u"e"},       {6, u""},       {7, u""},      {99, u""}};
    for (const auto &[n, rest] : cases) {
        kszöveg text = hungarian(u"csésze"_s);
        EXPECT_EQ(text.balrólvágott(n), text_of(rest)) << n;
        EXPECT_EQ(text.value(), u"csésze"_s) << n;

        text.levág_balról(n);

        EXPECT_EQ(text.value(), text_of(rest)) << n;
    }
}

TEST(HungarianText, takes_another_text_in_before_a_character) {
    const Cut cases[] = {{1, u"-+alma"}, {2, u"a-+lma"},  {4, u"alm-+a"}, {5, u"alma-+"},
                         {6, u"alma-+"}, {99, u"alma-+"}, {0, u"-+alma"}, {-7, u"-+alma"}};
    for (const auto &[place, result] : cases) {
        kszöveg text = hungarian(u"alma"_s);
        EXPECT_EQ(text.beszúr_nem_változik(place, u"-+"_s), text_of(result)) << place;
        EXPECT_EQ(text.value(), u"alma"_s) << place;

        text.beszúr(place, u"-+"_s);

        EXPECT_EQ(text.value(), text_of(result)) << place;
    }
}

TEST(HungarianText, takes_nothing_in_and_takes_in_while_it_is_empty) {
    kszöveg text;

    text.beszúr(1, QString());
    EXPECT_EQ(text.value(), QString());
    text.beszúr(3, u"alma"_s);
    EXPECT_EQ(text.value(), u"alma"_s);
    text.beszúr(3, QString());
    EXPECT_EQ(text.value(), u"alma"_s);
}

TEST(HungarianText, replaces_every_occurrence_from_left_to_right_and_never_in_what_was_put_in) {
    const struct {
        const char16_t *text, *old, *put_in, *result;
    } cases[] = {{u"alma", u"a", u"á", u"álmá"}, {u"két rossz szó", u" ", u"_", u"két_rossz_szó"},
                 {u"aaa", u"aa", u"b", u"ba"},   {u"aa", u"a", u"aa", u"aaaa"},
                 {u"aabb", u"ab", u"", u"ab"},   {u"xaa", u"xa", u"x", u"xa"},
                 {u"Alma", u"a", u"o", u"Almo"}, {u"alma", u"A", u"o", u"alma"},
                 {u"alma", u"alma", u"", u""},   {u"alma", u"almaa", u"x", u"alma"},
                 {u"", u"a", u"b", u""},         {u"alma", u"", u"x", u"alma"}};
    for (const auto &one : cases) {
        kszöveg text = hungarian(text_of(one.text));

        text.csere(text_of(one.old), text_of(one.put_in));

        EXPECT_EQ(text.value(), text_of(one.result));
    }
}

TEST(HungarianText, has_other_letters_after_a_replacement) {
    kszöveg text = hungarian(u"koca"_s);

    text.csere(u"c"_s, u"cs"_s);

    EXPECT_EQ(letters_of(text), u"k|o|cs|a"_s);
}

TEST(HungarianText, is_split_again_by_a_replacement_of_nothing) {
    kszöveg text = hungarian(u"csésze"_s);
    text.szövegnyelv(kszöveg::angol);

    text.csere(QString(), u"x"_s);

    EXPECT_EQ(text.value(), u"csésze"_s);
    EXPECT_EQ(letters_of(text), u"c|s|é|s|z|e"_s);
}

TEST(HungarianText, keeps_its_letters_whatever_is_done_to_its_characters) {
    const std::function<void(kszöveg &)> operations[] = {
        [](kszöveg &text) { text.lenght(8); },
        [](kszöveg &text) { text.lenght(1); },
        [](kszöveg &text) { text.levág_jobbról(2); },
        [](kszöveg &text) { text.levág_balról(1); },
        [](kszöveg &text) { text.beszúr(2, u"zsz"_s); },
        [](kszöveg &text) { static_cast<void>(text.beszúr_nem_változik(2, u"x"_s)); },
        [](kszöveg &text) { text.töltelékkarakter(u"-"_s); },
    };
    for (const auto &operation : operations) {
        kszöveg text = hungarian(u"csésze"_s);

        operation(text);

        EXPECT_EQ(letters_of(text), u"cs|é|sz|e"_s) << text.value().toStdString();
    }
}

TEST(HungarianText, keeps_its_letters_until_the_text_is_set_in_the_new_language) {
    kszöveg text = hungarian(u"csésze"_s);
    text.szövegnyelv(u"angol"_s);
    EXPECT_EQ(letters_of(text), u"cs|é|sz|e"_s);
    text.value(text.value());
    EXPECT_EQ(letters_of(text), u"c|s|é|s|z|e"_s);

    text.szövegnyelv(kszöveg::magyar);
    EXPECT_EQ(letters_of(text), u"c|s|é|s|z|e"_s);
    text.value(text.value());
    EXPECT_EQ(letters_of(text), u"cs|é|sz|e"_s);
}

TEST(HungarianText, takes_its_article_by_the_letters_it_has_and_not_by_a_cut) {
    kszöveg text = hungarian(u"alma"_s);

    text.levág_balról(1);

    EXPECT_EQ(text.Névelővel(false), u"az lma"_s);
}

}  // namespace
