#include "freedict/dictd_files.h"

#include <gtest/gtest.h>

#include <random>

#include "tools/sample_package.h"

using namespace Qt::StringLiterals;

namespace {

using freedict::Definition;
using freedict::definitions;
using freedict::unpacked;

const QString index_name = u"sample.index"_s;
const QString data_name = u"sample.dict.dz"_s;

QString sentence(const std::variant<QVector<Definition>, Failure> &result) {
    const auto *failure = std::get_if<Failure>(&result);
    return failure == nullptr ? QString() : failure->sentence;
}

/// Bytes that hardly become shorter when packed, the same in every run.
QByteArray noise(qsizetype size) {
    std::mt19937 random(1);
    QByteArray bytes(size, '\0');
    for (char &byte : bytes)
        byte = static_cast<char>(random() & 0xFF);
    return bytes;
}

TEST(DictdIndex, a_line_gives_its_place_and_length_in_base64_most_significant_digit_first) {
    const QByteArray data(3000, 'x');

    const auto result = definitions("apple\tc\thf\n", data, index_name);

    const auto &found = std::get<QVector<Definition>>(result);
    ASSERT_EQ(found.size(), 1);
    EXPECT_TRUE(found[0].index_word == "apple");
    EXPECT_EQ(found[0].text.data() - data.data(), 28);
    EXPECT_EQ(found[0].text.size(), 33 * 64 + 31);
}

TEST(DictdIndex, each_of_the64_digits_has_its_value) {
    const QByteArray digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    const QByteArray data(64, 'x');

    for (qsizetype value = 0; value < 64; ++value) {
        const auto result = definitions(QByteArray("w\tA\t") + digits[value] + '\n', data, index_name);

        ASSERT_EQ(std::get<QVector<Definition>>(result).at(0).text.size(), value);
    }
}

TEST(DictdIndex, a_definition_may_end_with_the_data) {
    const auto result = definitions("w\tB\tC\n", "abc", index_name);

    EXPECT_TRUE(std::get<QVector<Definition>>(result).at(0).text == "bc");
}

TEST(DictdIndex, a_definition_that_reaches_beyond_the_data_is_named_with_its_line) {
    for (const char *line : {"w\tB\tD\n", "w\tE\tA\n", "w\t////////\tB\n", "w\t/////////\t/////////\n"}) {
        const auto result = definitions(QByteArray("w\tA\tA\n") + line, "abc", index_name);

        EXPECT_EQ(sentence(result),
                  u"A(z) „sample.index” fájl sérült: a(z) 2. sorban az adatfájlon kívülre mutató hely van."_s);
    }
}

TEST(DictdIndex, a_number_with_any_other_character_or_with_too_many_digits_is_refused) {
    for (const char *line : {"w\tA=\tA\n", "w\tA\t-\n", "w\t\tA\n", "w\tA\t\n", "w\tA\tA\r\n", "w\tA\tA\tw\n",
                             "w\tAAAAAAAAAA\tA\n", "w\tA\t\xC3\xA1\n"}) {
        const auto result = definitions(line, "abc", index_name);

        EXPECT_EQ(sentence(result), u"A(z) „sample.index” fájl sérült: a(z) 1. sorban értelmezhetetlen szám van."_s)
            << line;
    }
}

TEST(DictdIndex, a_line_without_three_columns_is_refused) {
    for (const char *line : {"\n", "w\n", "w\tA\n", "\tA\tA\n"}) {
        const auto result = definitions(line, "abc", index_name);

        EXPECT_EQ(sentence(result), u"A(z) „sample.index” fájl sérült: a(z) 1. sorban nem három oszlop van."_s) << line;
    }
}

TEST(DictdIndex, an_index_cut_off_in_its_last_line_is_refused) {
    const auto result = definitions("a\tA\tB\nb\tB\tB", "abc", index_name);

    EXPECT_EQ(sentence(result), u"A(z) „sample.index” fájl sérült: az utolsó sora csonka."_s);
}

TEST(DictdData, a_file_of_many_megabytes_is_unpacked_byte_for_byte) {
    for (const QByteArray &bytes : {QByteArray(), QByteArray("alma"), noise(3'000'000), QByteArray(5'000'000, 'a')}) {
        const FileContent content = unpacked(SamplePackage::packed(bytes), data_name);

        ASSERT_TRUE(std::holds_alternative<QByteArray>(content));
        EXPECT_TRUE(std::get<QByteArray>(content) == bytes);
    }
}

TEST(DictdData, a_file_cut_off_anywhere_is_refused) {
    const QByteArray gzip = SamplePackage::packed(noise(300));

    for (qsizetype size = 0; size < gzip.size(); ++size) {
        const FileContent content = unpacked(gzip.first(size), data_name);

        ASSERT_TRUE(std::holds_alternative<Failure>(content)) << size;
        EXPECT_EQ(std::get<Failure>(content).sentence, u"A(z) „sample.dict.dz” fájl sérült: nem ép gzip-fájl."_s);
    }
}

TEST(DictdData, a_file_with_one_wrong_byte_in_its_data_is_refused) {
    QByteArray gzip = SamplePackage::packed(noise(300));
    gzip[gzip.size() / 2] = static_cast<char>(gzip[gzip.size() / 2] ^ 1);

    const FileContent content = unpacked(gzip, data_name);

    EXPECT_TRUE(std::holds_alternative<Failure>(content));
}

TEST(DictdData, a_file_with_something_behind_its_end_is_refused) {
    const FileContent content = unpacked(SamplePackage::packed("alma") + 'x', data_name);

    ASSERT_TRUE(std::holds_alternative<Failure>(content));
    EXPECT_EQ(std::get<Failure>(content).sentence,
              u"A(z) „sample.dict.dz” fájl sérült: a gzip-adatok vége után is van benne valami."_s);
}

TEST(DictdData, a_file_that_is_not_packed_is_refused) {
    EXPECT_TRUE(std::holds_alternative<Failure>(unpacked("apple /x/\nalma\n", data_name)));
    EXPECT_TRUE(std::holds_alternative<Failure>(unpacked(qCompress("alma").sliced(4), data_name)));
}

}  // namespace
