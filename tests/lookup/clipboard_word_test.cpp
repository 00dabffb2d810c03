#include "lookup/clipboard_word.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <algorithm>
#include <optional>

#include "support/dictionary_for_tests.h"
#include "support/files_for_tests.h"
#include "support/memory_source.h"
#include "support/printing.h"
#include "support/test_places.h"

using namespace Qt::StringLiterals;

namespace {

std::optional<QString> word_of(const QString &text) {
    return vágólapszó().új_szó(text);
}

TEST(ClipboardWord, is_looked_up_once_for_the_same_text) {
    vágólapszó word;

    EXPECT_EQ(word.új_szó(u"alma"_s), u"alma"_s);
    EXPECT_EQ(word.új_szó(u"alma"_s), std::nullopt);
    EXPECT_EQ(word.új_szó(u"körte"_s), u"körte"_s);
    EXPECT_EQ(word.új_szó(u"alma"_s), u"alma"_s);
}

TEST(ClipboardWord, is_another_one_when_only_its_blanks_or_capitals_differ) {
    vágólapszó word;

    EXPECT_EQ(word.új_szó(u"alma"_s), u"alma"_s);
    EXPECT_EQ(word.új_szó(u"Alma"_s), u"alma"_s);
    EXPECT_EQ(word.új_szó(u"Alma "_s), u"alma"_s);
}

TEST(ClipboardWord, is_trimmed_and_in_lower_case) {
    EXPECT_EQ(word_of(u"  ÁRVÍZTŰRŐ Tükörfúrógép \t"_s), u"árvíztűrő tükörfúrógép"_s);
    EXPECT_EQ(word_of(u"\u00a0Apple\u00a0"_s), u"apple"_s);
}

TEST(ClipboardWord, is_empty_for_a_blank_text) {
    vágólapszó word;
    EXPECT_EQ(word.új_szó(u"alma"_s), u"alma"_s);
    EXPECT_EQ(word.új_szó(QString()), QString());

    for (const char16_t *text : {u" ", u"  \t ", u"\u00a0", u"\r\n", u"\"\"", u"( „” )"})
        EXPECT_EQ(word_of(QString::fromUtf16(text)), QString());
}

TEST(ClipboardWord, loses_the_quotes_and_brackets_around_it) {
    for (const char16_t *text : {u"\"apple\"", u"„apple”", u"“apple”", u"»apple«", u"'apple'", u"‘apple’", u"(apple)",
                                 u"[apple]", u"{apple}", u"<apple>", u"(„Apple”)", u" ( apple ) ", u"(apple", u"apple]",
                                 u"„apple", u"apple\"", u"\"apple\",", u"(apple)."})
        EXPECT_EQ(word_of(QString::fromUtf16(text)), u"apple"_s) << QString::fromUtf16(text).toStdString();
}

TEST(ClipboardWord, keeps_the_quotes_and_brackets_within_it) {
    for (const char16_t *text : {u"'cause", u"o'clock", u"students'", u"ért (vmit)", u"(be)leszeret", u"(a) és (b)",
                                 u"\"rock\" and \"roll", u"etc.", u"a, b"})
        EXPECT_EQ(word_of(QString::fromUtf16(text)), QString::fromUtf16(text))
            << QString::fromUtf16(text).toStdString();
}

TEST(ClipboardWord, loses_the_line_end_around_it) {
    for (const char16_t *text : {u"alma\n", u"alma\r\n", u"alma\u2028", u"\nalma", u" alma \n\n"})
        EXPECT_EQ(word_of(QString::fromUtf16(text)), u"alma"_s);
}

TEST(ClipboardWord, is_not_the_text_that_was_there) {
    vágólapszó word;
    word.megjegyez(u"alma"_s);

    EXPECT_EQ(word.új_szó(u"alma"_s), std::nullopt);
    EXPECT_EQ(word.új_szó(u"körte"_s), u"körte"_s);
}

TEST(ClipboardWord, has_up_to_two_hundred_letters) {
    EXPECT_EQ(word_of(QString(200, u'ű') + u'\n'), QString(200, u'ű'));
    EXPECT_EQ(word_of(QString(200, u'ű')), QString(200, u'ű'));
    EXPECT_EQ(word_of(QString(201, u'ű')), std::nullopt);
}

TEST(ClipboardWord, is_never_a_text_of_several_lines) {
    for (const char16_t *text :
         {u"alma\nkörte", u"alma\rkörte", u"alma\r\nkörte", u"alma\u2028körte", u"alma\u2029körte"})
        EXPECT_EQ(word_of(QString::fromUtf16(text)), std::nullopt) << QString::fromUtf16(text).toStdString();
}

TEST(ClipboardWord, that_was_refused_is_remembered_as_the_text_that_was_seen_last) {
    vágólapszó word;
    const QString lines = u"alma\nkörte"_s;

    EXPECT_EQ(word.új_szó(u"alma"_s), u"alma"_s);
    EXPECT_EQ(word.új_szó(lines), std::nullopt);
    EXPECT_EQ(word.új_szó(u"alma"_s), u"alma"_s);
}

/// Searches that find what begins with one of `headwords`, and the texts that were searched for.
struct FakeSearch {
    QStringList headwords;
    QStringList searched;
    /// The search that is overtaken; −1 for none.
    int overtaken = -1;

    QStringList shorten(const QString &word) {
        rövidítve_keres(word, [this](const QString &text) -> std::optional<bool> {
            searched.append(text);
            if (searched.size() - 1 == overtaken)
                return std::nullopt;
            return std::any_of(headwords.begin(), headwords.end(),
                               [&](const QString &headword) { return !text.isEmpty() && headword.startsWith(text); });
        });
        return searched;
    }
};

TEST(Shortening, searches_a_word_that_is_found_only_once) {
    FakeSearch search{{u"almafa"_s}, {}};

    EXPECT_EQ(search.shorten(u"alma"_s), QStringList{u"alma"_s});
}

TEST(Shortening, drops_one_letter_after_the_other_from_the_end) {
    FakeSearch search{{u"almafa"_s, u"al"_s}, {}};

    EXPECT_EQ(search.shorten(u"almánk"_s), QStringList({u"almánk"_s, u"almán"_s, u"almá"_s, u"alm"_s}));
}

TEST(Shortening, ends_with_the_empty_text_when_nothing_is_found) {
    FakeSearch search{{u"almafa"_s}, {}};

    EXPECT_EQ(search.shorten(u"qqqq"_s), QStringList({u"qqqq"_s, u"qqq"_s, u"qq"_s, u"q"_s, QString()}));
}

TEST(Shortening, searches_an_empty_word_once) {
    FakeSearch search{{u"almafa"_s}, {}};

    EXPECT_EQ(search.shorten(QString()), QStringList{QString()});
}

TEST(Shortening, stops_where_a_newer_search_overtakes_it) {
    FakeSearch search{{u"almafa"_s}, {}, 1};

    EXPECT_EQ(search.shorten(u"qqqq"_s), QStringList({u"qqqq"_s, u"qqq"_s}));
}

/// Where a word ends in a dictionary, and what is found there.
struct Shortened {
    QString to;
    QByteArrayList headwords;
};

Shortened shortened(ByteSource &dictionary, const QString &word) {
    Shortened result;
    rövidítve_keres(word, [&](const QString &text) -> std::optional<bool> {
        result.to = text;
        const auto bytes = code_page::encode(text);
        result.headwords = bytes && !text.isEmpty() ? find_in(dictionary, *bytes).headwords : QByteArrayList();
        return !result.headwords.isEmpty();
    });
    return result;
}

class ShorteningInTheRealDictionary : public testing::Test {
  protected:
    [[nodiscard]] Shortened shortened(const char16_t *word) {
        return ::shortened(dictionary_, QString::fromUtf16(word));
    }

    FileSource dictionary_{test_places::in_program(u"ma.txt"_s)};
};

TEST_F(ShorteningInTheRealDictionary, ends_at_the_longest_beginning_of_a_headword) {
    // "in my houses" is no headword, nor does one begin with "házaim"; "házaik" is one.
    const Shortened result = shortened(u"házaimban");

    EXPECT_EQ(result.to, u"házai"_s);
    EXPECT_EQ(result.headwords, QByteArrayList{cp1250(u"házaik")});
}

TEST_F(ShorteningInTheRealDictionary, leads_from_an_inflected_word_to_its_stem) {
    const Shortened result = shortened(u"szomszédaimmal");

    EXPECT_EQ(result.to, u"szomszéd"_s);
    EXPECT_TRUE(result.headwords.contains(cp1250(u"szomszéd")));
}

TEST_F(ShorteningInTheRealDictionary, leads_from_other_inflected_words_to_what_they_begin_with) {
    EXPECT_EQ(shortened(u"almáskertjeinkben").to, u"almás"_s);
    EXPECT_EQ(shortened(u"ablakokban").to, u"ablakok"_s);
    EXPECT_EQ(shortened(u"megtaláltuk").to, u"megtalál"_s);
    EXPECT_EQ(shortened(u"gyerekeinknek").to, u"gyereke"_s);
}

TEST_F(ShorteningInTheRealDictionary, leaves_a_headword_as_it_is) {
    EXPECT_EQ(shortened(u"alma").to, u"alma"_s);
}

TEST_F(ShorteningInTheRealDictionary, ends_at_a_single_letter_of_a_word_that_begins_like_no_other) {
    const Shortened result = shortened(u"qqqq");

    EXPECT_EQ(result.to, u"q"_s);
    EXPECT_TRUE(result.headwords.contains("quorum"));
}

TEST_F(ShorteningInTheRealDictionary, ends_at_nothing_for_letters_that_no_headword_begins_with) {
    for (const char16_t *word : {u"@@@@", u"火山"}) {
        const Shortened result = shortened(word);

        EXPECT_EQ(result.to, QString());
        EXPECT_TRUE(result.headwords.isEmpty());
    }
}

TEST(ShorteningInASmallDictionary, ends_at_nothing_for_a_word_that_begins_like_none) {
    MemorySource dictionary(dictionary_of({"alma:apple\xf7", "k\xf6rte:pear\xf7"}));

    const Shortened result = shortened(dictionary, u"qqqq"_s);

    EXPECT_EQ(result.to, QString());
    EXPECT_TRUE(result.headwords.isEmpty());
}

}  // namespace
