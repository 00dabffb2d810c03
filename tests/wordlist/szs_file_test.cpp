#include "wordlist/szs_file.h"

#include <gtest/gtest.h>

#include "support/files_for_tests.h"
#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

QVector<szópár> pairs(std::initializer_list<std::pair<const char16_t *, const char16_t *>> list) {
    QVector<szópár> made;
    for (const auto &[english, hungarian] : list)
        made.append({QString::fromUtf16(english), QString::fromUtf16(hungarian)});
    return made;
}

QByteArray written(const QVector<szópár> &list) {
    return std::get<QByteArray>(szsfájl::ír(list));
}

TEST(SzsFile, writes_exactly_these_bytes) {
    EXPECT_EQ(written(pairs({{u"apple", u"alma, almafa"}, {u"dog", u"kutya"}})), "apple:alma, almafa\r\ndog:kutya\r\n");
    EXPECT_EQ(written(pairs({{u"flood", u"árvízűző"}})), QByteArray("flood:\xe1rv\xedz\xfbz\xf5\r\n"));
    EXPECT_EQ(written({}), "");
}

TEST(SzsFile, splits_each_line_at_its_first_colon) {
    EXPECT_EQ(szsfájl::olvas(cp1250(u"time:idő: 3 óra\r\n")), pairs({{u"time", u"idő: 3 óra"}}));
}

TEST(SzsFile, takes_a_line_without_a_colon_for_a_pair_without_english) {
    EXPECT_EQ(szsfájl::olvas("alma\r\n"), pairs({{u"", u"alma"}}));
}

TEST(SzsFile, takes_an_empty_line_for_an_empty_pair) {
    EXPECT_EQ(szsfájl::olvas("a:b\r\n\r\nc:d\r\n"), pairs({{u"a", u"b"}, {u"", u""}, {u"c", u"d"}}));
}

TEST(SzsFile, trims_nothing) {
    EXPECT_EQ(szsfájl::olvas(" a : b \r\n"), pairs({{u" a ", u" b "}}));
}

TEST(SzsFile, reads_line_ends_of_another_system) {
    EXPECT_EQ(szsfájl::olvas("a:b\nc:d\n"), pairs({{u"a", u"b"}, {u"c", u"d"}}));
}

TEST(SzsFile, reads_a_last_line_without_a_line_end) {
    EXPECT_EQ(szsfájl::olvas("a:b\r\nc:d"), pairs({{u"a", u"b"}, {u"c", u"d"}}));
}

TEST(SzsFile, has_no_pairs_when_it_is_empty) {
    EXPECT_TRUE(szsfájl::olvas("").isEmpty());
}

TEST(SzsFile, gives_the_bytes_back_that_it_read_whatever_they_are) {
    QByteArray bytes("NUL\0in:the \0middle\r\n", 20);
    for (int byte = 0; byte < 256; ++byte) {
        if (byte != '\n' && byte != '\r')
            bytes.append(static_cast<char>(byte)).append("x:y\r\n");
    }
    bytes.append("lone\rreturn:in a line\r\r\n");

    EXPECT_EQ(written(szsfájl::olvas(bytes)), bytes);
}

TEST(SzsFile, holds_a_line_of_a_mebibyte) {
    const QByteArray bytes = "long:" + QByteArray(1 << 20, 'x') + "\r\n";

    EXPECT_EQ(written(szsfájl::olvas(bytes)), bytes);
}

TEST(SzsFile, holds_a_hundred_thousand_pairs) {
    QByteArray bytes;
    for (int i = 0; i < 100000; ++i)
        bytes += "word" + QByteArray::number(i) + ":sz\xf3" + QByteArray::number(i) + "\r\n";

    const QVector<szópár> read = szsfájl::olvas(bytes);

    ASSERT_EQ(read.size(), 100000);
    EXPECT_EQ(read.back(), (szópár{u"word99999"_s, u"szó99999"_s}));
    EXPECT_EQ(written(read), bytes);
}

TEST(SzsFile, names_the_word_that_the_code_page_cannot_hold) {
    const FileContent content = szsfájl::ír(pairs({{u"apple", u"alma"}, {u"fire", u"火 tűz"}}));

    const QString sentence = std::get<Failure>(content).sentence;
    EXPECT_TRUE(sentence.contains(u"„火 tűz”"_s)) << sentence.toStdString();
    EXPECT_TRUE(sentence.contains(u"„火”"_s)) << sentence.toStdString();
}

TEST(SzsFile, refuses_what_would_be_read_as_something_else) {
    EXPECT_TRUE(std::holds_alternative<Failure>(szsfájl::ír(pairs({{u"a:b", u"c"}}))));
    EXPECT_TRUE(std::holds_alternative<Failure>(szsfájl::ír(pairs({{u"a", u"b\nc"}}))));
    EXPECT_FALSE(szsfájl::akadály(pairs({{u"a:b", u"c"}})[0]).isEmpty());
    EXPECT_TRUE(szsfájl::akadály(pairs({{u"time", u"idő: 3 óra"}})[0]).isEmpty());
}

TEST(SzsFile, quotes_the_beginning_of_a_word_that_is_too_long_for_a_message) {
    const QString longest(5000, u'x');
    const QString sentences[] = {szsfájl::akadály({longest + u':', u"szó"_s}),
                                 szsfájl::akadály({longest, u"két\nsor"_s}),
                                 std::get<Failure>(szsfájl::ír({{longest, longest + u'火'}})).sentence};

    for (const QString &sentence : sentences)
        EXPECT_TRUE(sentence.contains(u'„' + longest.left(60) + u"…”"_s)) << sentence.toStdString();
}

}  // namespace
