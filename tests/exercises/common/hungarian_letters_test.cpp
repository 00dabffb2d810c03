#include <gtest/gtest.h>

#include <QRegularExpression>

#include "support/headwords.h"
#include "support/letters.h"
#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

/// Texts with the letters they have, as they are split.
struct Split {
    const char16_t *text, *letters;
};

/// The letters of every text of the table, in Hungarian.
template <size_t count>
void expect_letters(const Split (&table)[count]) {
    for (const auto &[text, letters] : table)
        EXPECT_EQ(hungarian_letters(QString::fromUtf16(text)), QString::fromUtf16(letters));
}

TEST(HungarianLetters, of_csesze_are_four_and_keep_a_capital) {
    expect_letters({{u"csésze", u"cs|é|sz|e"}, {u"Csésze", u"Cs|é|sz|e"}});
}

TEST(HungarianLetters, of_dzsungel_begin_with_one_of_three_characters) {
    expect_letters({{u"dzsungel", u"dzs|u|n|g|e|l"}});
}

TEST(HungarianLetters, of_asszony_have_a_long_one_of_three_characters) {
    expect_letters({{u"asszony", u"a|ssz|o|ny"}});
}

TEST(HungarianLetters, of_ship_are_four_in_english) {
    EXPECT_EQ(english_letters(u"ship"_s), u"s|h|i|p"_s);
}

TEST(HungarianLetters, are_single_characters_in_english_whatever_they_look_like) {
    EXPECT_EQ(english_letters(u"dzs Cs ny"_s), u"d|z|s| |C|s| |n|y"_s);
    EXPECT_EQ(english_letters(u"rajzszög"_s), u"r|a|j|z|s|z|ö|g"_s);
}

TEST(HungarianLetters, of_more_than_one_character_are_these_seventeen) {
    for (const char16_t *letter : {u"dzs", u"ccs", u"ddz", u"ggy", u"lly", u"nny", u"ssz", u"tty", u"zzs", u"cs", u"dz",
                                   u"gy", u"ly", u"ny", u"sz", u"ty", u"zs"}) {
        const QString text = QString::fromUtf16(letter);
        EXPECT_EQ(hungarian_letters(text), text);
        EXPECT_EQ(hungarian_letters(text.toUpper()), text.toUpper());
        EXPECT_EQ(hungarian_letters(u"a%1a"_s.arg(text)), u"a|%1|a"_s.arg(text));
    }
}

TEST(HungarianLetters, of_two_equal_characters_are_two) {
    expect_letters({{u"jobb", u"j|o|b|b"},
                    {u"ujj", u"u|j|j"},
                    {u"rézzel", u"r|é|z|z|e|l"},
                    {u"lassan", u"l|a|s|s|a|n"},
                    {u"ccddggllnnssttzz", u"c|c|d|d|g|g|l|l|n|n|s|s|t|t|z|z"}});
}

TEST(HungarianLetters, are_taken_from_the_left) {
    expect_letters({{u"egészség", u"e|g|é|sz|s|é|g"},
                    {u"egyszer", u"e|gy|sz|e|r"},
                    {u"csszs", u"cs|sz|s"},
                    {u"dzssz", u"dzs|sz"},
                    {u"szsz", u"sz|sz"},
                    {u"sssz", u"s|ssz"},
                    {u"zzzs", u"z|zzs"}});
}

TEST(HungarianLetters, keep_the_case_of_each_character) {
    expect_letters({{u"CSÉSZE", u"CS|É|SZ|E"},
                    {u"cSéSze", u"cS|é|Sz|e"},
                    {u"Dzsungel", u"Dzs|u|n|g|e|l"},
                    {u"DZSUNGEL", u"DZS|U|N|G|E|L"},
                    {u"dZsungel", u"dZs|u|n|g|e|l"},
                    {u"ASSZONY", u"A|SSZ|O|NY"},
                    {u"Győr", u"Gy|ő|r"},
                    {u"ŐSZ", u"Ő|SZ"}});
}

TEST(HungarianLetters, of_four_compound_words_are_those_of_their_parts) {
    expect_letters({{u"rajzszög", u"r|a|j|z|sz|ö|g"},
                    {u"Rajzszög", u"R|a|j|z|sz|ö|g"},
                    {u"RAJZSZÖG", u"R|A|J|Z|SZ|Ö|G"},
                    {u"rajzszeg", u"r|a|j|z|sz|e|g"},
                    {u"Rajzszeg", u"R|a|j|z|sz|e|g"},
                    {u"RAJZSZEG", u"R|A|J|Z|SZ|E|G"},
                    {u"karosszék", u"k|a|r|o|s|sz|é|k"},
                    {u"Karosszék", u"K|a|r|o|s|sz|é|k"},
                    {u"KAROSSZÉK", u"K|A|R|O|S|SZ|É|K"},
                    {u"magánnyomozó", u"m|a|g|á|n|ny|o|m|o|z|ó"},
                    {u"Magánnyomozó", u"M|a|g|á|n|ny|o|m|o|z|ó"},
                    {u"MAGÁNNYOMOZÓ", u"M|A|G|Á|N|NY|O|M|O|Z|Ó"},
                    {u"rAJzsZöG", u"r|A|J|z|sZ|ö|G"}});
}

TEST(HungarianLetters, of_a_text_with_more_than_the_compound_word_follow_the_rule) {
    expect_letters({{u"rajzszögek", u"r|a|j|zs|z|ö|g|e|k"},
                    {u"karosszék ", u"k|a|r|o|ssz|é|k| "},
                    {u"a karosszék", u"a| |k|a|r|o|ssz|é|k"},
                    {u"rajzszö", u"r|a|j|zs|z|ö"},
                    {u"karosszek", u"k|a|r|o|ssz|e|k"}});
}

TEST(HungarianLetters, of_two_units_stay_one) {
    expect_letters({{u"a😀b", u"a|😀|b"}, {u"😀😀", u"😀|😀"}, {u"cs𝒜sz", u"cs|𝒜|sz"}});
    EXPECT_EQ(english_letters(u"a😀b"_s), u"a|😀|b"_s);
    EXPECT_EQ(hungarian(u"a😀b"_s).MAGYARBETŰKSZÁMA(), 3);
}

TEST(HungarianLetters, keep_an_accent_that_is_written_separately) {
    expect_letters({{u"ne\u0301v", u"n|e\u0301|v"}});
    EXPECT_EQ(english_letters(u"cafe\u0301"_s), u"c|a|f|e\u0301"_s);
}

/// Everyday words, split as a Hungarian would spell them.
constexpr const char16_t *spelled[] = {
    u"a|l|m|a",         u"a|b|l|a|k",
    u"v|a|s|á|r|n|a|p", u"t|ö|r|t|é|n|e|t",
    u"sz|ő|l|ő",        u"a|sz|t|a|l",
    u"sz|a|p|p|a|n",    u"o|r|sz|á|g",
    u"e|g|é|sz|s|é|g",  u"t|e|j|sz|í|n",
    u"z|á|sz|l|ó",      u"f|é|ny|k|é|p|é|sz",
    u"r|o|ssz",         u"h|o|ssz|ú",
    u"v|i|ssz|a",       u"ö|ssz|e",
    u"b|u|ssz|a|l",     u"cs|i|l|l|a|g",
    u"k|u|l|cs",        u"gy|ü|m|ö|l|cs",
    u"k|a|l|á|cs",      u"m|é|cs|e|s",
    u"m|e|ccs",         u"ö|ccs|e",
    u"l|o|ccs|a|n",     u"e|dz|ő",
    u"m|a|dz|a|g",      u"b|o|dz|a",
    u"e|ddz|ü|k",       u"e|ddz|e|n",
    u"dzs|e|m",         u"l|á|n|dzs|a",
    u"b|r|i|dzs",       u"m|a|h|a|r|a|dzs|a",
    u"gy|e|r|e|k",      u"m|a|gy|a|r",
    u"n|a|gy|n|é|n|i",  u"gy|ó|gy|sz|e|r",
    u"t|i|z|e|n|e|gy",  u"m|e|ggy",
    u"p|o|ggy|á|sz",    u"f|a|ggy|ú",
    u"ly|u|k",          u"f|o|ly|ó",
    u"k|i|r|á|ly",      u"m|é|ly|s|é|g",
    u"g|a|lly",         u"s|ü|lly|e|d",
    u"ny|á|r",          u"k|e|ny|é|r",
    u"l|á|ny",          u"k|ö|nny|ű",
    u"m|e|nny|i",       u"l|á|nny|a|l",
    u"ty|ú|k",          u"k|u|ty|a",
    u"h|a|tty|ú",       u"p|ö|tty",
    u"f|ü|tty",         u"zs|á|k",
    u"r|ó|zs|a",        u"zs|e|b|k|e|n|d|ő",
    u"d|a|r|á|zs",      u"r|o|zzs|a|l",
    u"p|a|r|á|zzs|a|l", u"k|é|z|z|e|l",
    u"v|i|gy|á|z|z",
};

TEST(HungarianLetters, of_everyday_words_are_those_they_are_spelled_with) {
    for (const char16_t *letters : spelled) {
        const QString expected = QString::fromUtf16(letters);

        EXPECT_EQ(hungarian_letters(QString(expected).remove(u'|')), expected);
    }
}

/// The letters of `text` by a pattern that knows nothing of compound words.
QString split_by_pattern(const QString &text) {
    static const QRegularExpression letter(
        u"dzs|ccs|ddz|ggy|lly|nny|ssz|tty|zzs|cs|dz|gy|ly|ny|sz|ty|zs|."_s,
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
    QStringList letters;
    auto matches = letter.globalMatch(text);
    while (matches.hasNext())
        letters.append(matches.next().captured());
    return letters.join(u'|');
}

bool is_listed_compound(const QString &text) {
    static const QStringList compounds{u"rajzszög"_s, u"rajzszeg"_s, u"karosszék"_s, u"magánnyomozó"_s};
    return compounds.contains(text.toLower());
}

TEST(HungarianLetters, of_real_headwords_are_those_of_the_pattern) {
    const QStringList headwords = real_headwords("ma.txt", 20000);
    ASSERT_EQ(headwords.size(), 20000);
    int with_long_ones = 0;
    for (const QString &headword : headwords) {
        if (is_listed_compound(headword))
            continue;
        const kszöveg text = hungarian(headword);
        with_long_ones += text.MAGYARBETŰKSZÁMA() < headword.size() ? 1 : 0;

        ASSERT_EQ(letters_of(text), split_by_pattern(headword));
    }

    // Otherwise these would be no Hungarian words.
    EXPECT_GT(with_long_ones, 5000);
}

TEST(HungarianLetters, of_real_headwords_joined_are_the_headword_and_none_is_empty) {
    const QStringList headwords = real_headwords("ma.txt", 20000);
    ASSERT_EQ(headwords.size(), 20000);
    for (const QString &headword : headwords) {
        const kszöveg text = hungarian(headword);
        const int letters = text.MAGYARBETŰKSZÁMA();

        ASSERT_EQ(text.magyarleft(letters), headword);
        ASSERT_EQ(text.magyarright(letters), headword);
        ASSERT_EQ(text.magyarleft(letters / 2) + text.magyarright(letters - letters / 2), headword);
        for (int i = 1; i <= letters; ++i)
            ASSERT_FALSE(text.szóbetűje(i).isEmpty()) << headword.toStdString();
    }
}

TEST(HungarianLetters, of_real_english_headwords_are_their_characters) {
    const QStringList headwords = real_headwords("am.txt", 20000);
    ASSERT_EQ(headwords.size(), 20000);
    kszöveg text;
    text.szövegnyelv(kszöveg::angol);
    for (const QString &headword : headwords) {
        text.value(headword);

        ASSERT_EQ(text.MAGYARBETŰKSZÁMA(), headword.size()) << headword.toStdString();
        for (int i = 1; i <= headword.size(); ++i)
            ASSERT_EQ(text.szóbetűje(i), headword.at(i - 1)) << headword.toStdString();
    }
}

}  // namespace
