#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "support/dictionary_for_tests.h"
#include "support/memory_source.h"
#include "support/printing.h"

namespace {

using testing::IsEmpty;

/// Every search of any bytes ends, and no byte is read much more often than once for each step of the binary search and
/// once for each walk and scan.
void expect_bounded(const QByteArray &bytes, const QByteArray &text) {
    MemorySource source(bytes);

    static_cast<void>(find_in(source, text));

    EXPECT_LE(source.bytes_read, 60 * bytes.size() + 10000);
    EXPECT_LE(source.reads, bytes.size() + 1000);
}

TEST(DamagedDictionary, that_is_empty_has_no_hits) {
    MemorySource source{QByteArray()};

    EXPECT_THAT(find_in(source, "a").headwords, IsEmpty());
}

TEST(DamagedDictionary, that_is_one_byte_has_no_hits) {
    for (const char *byte : {"a", "\n", "\r", ":"}) {
        MemorySource source{QByteArray(byte)};
        EXPECT_THAT(find_in(source, "a").headwords, IsEmpty());
    }
}

TEST(DamagedDictionary, without_any_line_end_has_no_hits) {
    const QByteArray bytes(100000, 'a');
    MemorySource source(bytes);

    EXPECT_THAT(find_in(source, "a").headwords, IsEmpty());
    expect_bounded(bytes, "a");
}

TEST(DamagedDictionary, without_a_last_line_end_has_its_last_entry) {
    MemorySource source(QByteArray(101, '#') + "\r\napple:alma\xf7\r\nzebra:zebra\xf7");

    EXPECT_EQ(find_in(source, "zebra").headwords, QByteArrayList{"zebra"});
}

TEST(DamagedDictionary, with_lf_line_ends_is_read_all_the_same) {
    MemorySource source(QByteArray(101, '#') + "\napple:alma\xf7\nzebra:zebra\xf7\n");

    const Found found = find_in(source, "zebra");

    EXPECT_EQ(found.headwords, QByteArrayList{"zebra"});
    EXPECT_EQ(found.meanings, QByteArrayList{"zebra\xf7"});
}

TEST(DamagedDictionary, with_a_line_that_is_too_long_has_all_its_other_entries_and_the_beginning_of_that_one) {
    QByteArray bytes(101, '#');
    const QByteArrayList words{"apple", "bear", "cat", "dog", "elephant", "fox"};
    for (const QByteArray &word : words)
        bytes += "\r\n" + word + ":meaning\xf7" + (word == "cat" ? QByteArray(300000, 'x') + "\xf7" : QByteArray());
    bytes += "\r\n";

    for (const QByteArray &word : words) {
        MemorySource source(bytes);
        const Found found = find_in(source, word);

        EXPECT_EQ(found.headwords, QByteArrayList{word});
        EXPECT_TRUE(found.meanings.value(0).startsWith("meaning\xf7"));
        EXPECT_LE(found.meanings.value(0).size(), 65536);
        expect_bounded(bytes, word);
    }
}

TEST(DamagedDictionary, that_is_unsorted_is_searched_to_an_end) {
    std::mt19937 random(1);
    QByteArray bytes(101, '#');
    for (int i = 0; i < 5000; ++i)
        bytes += "\r\n" + QByteArray::number(random()) + ":x\xf7";

    for (const char *text : {"", "0", "5", "99", "a"})
        expect_bounded(bytes, text);
}

TEST(DamagedDictionary, of_random_bytes_is_searched_to_an_end) {
    std::mt19937 random(2);
    for (int size = 1; size < 70000; size = size * 3 + 1) {
        QByteArray bytes;
        for (int i = 0; i < size; ++i)
            bytes.append(static_cast<char>(random()));
        for (const char *text : {"", "a", "\x80", "\xff", "to ", "to x"})
            expect_bounded(bytes, text);
    }
}

TEST(DamagedDictionary, with_a_line_of_a_mebibyte_still_has_its_other_entries) {
    const QByteArray bytes = QByteArray(101, '#') + "\r\napple:alma\xf7\r\nmiddle:" + QByteArray(1 << 20, 'x') +
                             "\xf7\r\nzebra:zebra\xf7\r\n";
    for (const char *text : {"apple", "middle", "zebra"}) {
        MemorySource source(bytes);
        EXPECT_EQ(find_in(source, text).headwords, QByteArrayList{text});
        expect_bounded(bytes, text);
    }
}

TEST(DamagedDictionary, skips_a_line_without_a_colon_and_goes_on) {
    MemorySource source(QByteArray(101, '#') + "\r\nalma\r\nalmafa:apple tree\xf7\r\nalmb\r\nalmc:x\xf7\r\n");

    EXPECT_EQ(find_in(source, "alm").headwords, (QByteArrayList{"almafa", "almc"}));
}

TEST(DamagedDictionary, shows_an_entry_without_a_separator) {
    MemorySource source(QByteArray(101, '#') + "\r\nalma:apple\r\n");

    EXPECT_EQ(find_in(source, "alma").meanings, QByteArrayList{"apple"});
}

}  // namespace
