#include "dictionary/dictionary_check.h"

#include <gtest/gtest.h>

#include "support/dictionary_for_tests.h"
#include "support/memory_source.h"
#include "support/printing.h"
#include "support/test_places.h"

using namespace Qt::StringLiterals;

namespace {

QString damage_of(const QByteArray &bytes) {
    MemorySource source(bytes);
    return szótárhiba(source).value_or(QString());
}

/// Larger than all samples together.
QByteArray large_dictionary() {
    QByteArrayList entries;
    for (int i = 0; i < 20000; ++i)
        entries.append("g" + QByteArray::number(100000 + i) + ":x\xf7y\xf7");
    return dictionary_of(entries);
}

TEST(DictionaryCheck, finds_nothing_wrong_with_a_sound_one) {
    EXPECT_EQ(damage_of(dictionary_of({"apple:alma\xf7"})), QString());
    EXPECT_EQ(damage_of(dictionary_of({"apple:alma\xf7", "dog:kutya\xf7", "no meaning:semmi"})), QString());
    EXPECT_EQ(damage_of(large_dictionary()), QString());
}

TEST(DictionaryCheck, finds_nothing_wrong_with_other_line_ends) {
    EXPECT_EQ(damage_of(dictionary_of({"apple:alma\xf7", "dog:kutya\xf7"}).replace("\r\n", "\n")), QString());
    EXPECT_EQ(damage_of(dictionary_of({"apple:alma\xf7"}).chopped(2)), QString());
}

TEST(DictionaryCheck, finds_nothing_wrong_with_the_real_ones) {
    for (const char16_t *name : {u"am.txt", u"ma.txt"}) {
        FileSource file(test_places::in_program(QString::fromUtf16(name)));
        CountingSource counted(file);

        EXPECT_EQ(szótárhiba(counted), std::nullopt);
        EXPECT_LE(counted.bytes_read, 128 * 1024);
    }
}

TEST(DictionaryCheck, finds_an_empty_one) {
    EXPECT_EQ(damage_of(""), u"üres."_s);
}

TEST(DictionaryCheck, finds_one_without_an_entry) {
    EXPECT_EQ(damage_of("a notice\r\n"), u"egyetlen szócikk sincs benne."_s);
    EXPECT_EQ(damage_of("half a not"), u"egyetlen szócikk sincs benne."_s);
}

TEST(DictionaryCheck, finds_bytes_that_are_no_text) {
    const QString binary = u"olyan bájtok is vannak benne, amelyek szövegben nem állhatnak."_s;
    QByteArray half = large_dictionary();
    half.replace(half.size() / 2, half.size() / 2, QByteArray(half.size() / 2, '\0'));

    EXPECT_EQ(damage_of(half), binary);
    EXPECT_EQ(damage_of(QByteArray::fromHex("7f454c460201010000")), binary);
}

TEST(DictionaryCheck, finds_lines_that_are_no_entries) {
    EXPECT_EQ(damage_of("a notice\r\nonce upon a time\r\nthere was\r\n"), u"a sorai nem szócikkek."_s);
}

TEST(DictionaryCheck, finds_another_code_page) {
    const QByteArray utf8 = QString::fromLatin1(dictionary_of({"apple:alma\xf7", "dog:kutya\xf7"})).toUtf8();

    EXPECT_TRUE(damage_of(utf8).startsWith(u"nem windows-1250 kódolású"_s));
    EXPECT_TRUE(damage_of(dictionary_of({"apple:alma\xf6", "dog:kutya\xf6"})).startsWith(u"nem windows-1250"_s));
}

TEST(DictionaryCheck, finds_one_that_was_cut) {
    const QByteArray whole = large_dictionary();

    EXPECT_EQ(damage_of(whole.left(whole.size() / 2 / 14 * 14 - 5)), u"a vége hiányzik."_s);
    EXPECT_EQ(damage_of(dictionary_of({"apple:alma\xf7", "dog:kutya\xf7"}).chopped(5)), u"a vége hiányzik."_s);
}

}  // namespace
