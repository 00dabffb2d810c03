#include "media/settings_lines.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "support/files_for_tests.h"
#include "support/odd_files.h"
#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

class SettingsLines : public testing::Test {
  protected:
    /// The lines of a file that has `bytes`.
    [[nodiscard]] QStringList lines_of(const QByteArray &bytes) const {
        write_file(file_, bytes);
        return std::get<QStringList>(beállítássorok::olvas(file_));
    }

    QTemporaryDir folder_;
    QString file_ = folder_.filePath(u"grathang.ini"_s);
};

TEST_F(SettingsLines, write_a_switch_as_a_digit_behind_a_blank) {
    EXPECT_EQ(beállítássorok::kapcsolósor(true), u" 1"_s);
    EXPECT_EQ(beállítássorok::kapcsolósor(false), u" 0"_s);
}

TEST_F(SettingsLines, read_a_switch_with_blanks_or_without) {
    for (const char *on : {" 1", "1", "1 ", "\t1", " 2", "-1"})
        EXPECT_EQ(beállítássorok::kapcsoló(QString::fromLatin1(on)), true) << on;
    for (const char *off : {" 0", "0", " 0 ", "00", "-0"})
        EXPECT_EQ(beállítássorok::kapcsoló(QString::fromLatin1(off)), false) << off;
}

TEST_F(SettingsLines, read_no_switch_where_there_is_no_whole_number) {
    for (const char *line : {"", " ", "x", "1x", "taps.wav", "1 0", "0.5", "99999999999", "--1", "igen"})
        EXPECT_EQ(beállítássorok::kapcsoló(QString::fromLatin1(line)), std::nullopt) << line;
}

TEST_F(SettingsLines, are_none_in_a_missing_file_and_in_one_of_zero_bytes) {
    EXPECT_EQ(std::get<QStringList>(beállítássorok::olvas(file_)), QStringList());
    EXPECT_EQ(lines_of(""), QStringList());
}

TEST_F(SettingsLines, are_none_where_a_folder_has_the_name_of_the_file) {
    EXPECT_EQ(std::get<QStringList>(beállítássorok::olvas(folder_.path())), QStringList());
}

TEST_F(SettingsLines, end_with_cr_lf_or_lf_and_the_last_one_with_nothing_too) {
    const QStringList lines{u" 1"_s, u"a.wav"_s};

    for (const char *bytes : {" 1\r\na.wav\r\n", " 1\na.wav\n", " 1\r\na.wav"})
        EXPECT_EQ(lines_of(bytes), lines) << bytes;
}

TEST_F(SettingsLines, keep_their_blanks) {
    EXPECT_EQ(lines_of(" két  szó .wav \r\n"), QStringList(code_page::decode(" két  szó .wav ")));
}

TEST_F(SettingsLines, are_read_in_the_code_page) {
    EXPECT_EQ(lines_of("\xf5sz \xfb.wav\r\n"), QStringList(u"ősz ű.wav"_s));
}

TEST_F(SettingsLines, tell_of_a_file_that_cannot_be_read) {
    const UnreadableFile unreadable(file_);

    const auto read = beállítássorok::olvas(file_);

    ASSERT_TRUE(std::holds_alternative<Failure>(read));
    EXPECT_TRUE(std::get<Failure>(read).sentence.startsWith(
        u"A(z) „%1” fájl nem olvasható: "_s.arg(QDir::toNativeSeparators(file_))));
}

TEST_F(SettingsLines, are_written_in_the_code_page_with_cr_lf) {
    const FileContent bytes = beállítássorok::bájtok({u" 0"_s, u"ősz ű.wav"_s});

    EXPECT_EQ(std::get<QByteArray>(bytes), " 0\r\n\xf5sz \xfb.wav\r\n");
}

TEST_F(SettingsLines, read_as_they_were_written) {
    QStringList every_letter;
    for (int byte = 32; byte < 256; ++byte)
        every_letter.append(code_page::decode(QByteArray(3, static_cast<char>(byte))));

    EXPECT_EQ(lines_of(std::get<QByteArray>(beállítássorok::bájtok(every_letter))), every_letter);
}

TEST_F(SettingsLines, name_the_line_and_the_letter_that_the_code_page_lacks) {
    const FileContent bytes = beállítássorok::bájtok({u"a.wav"_s, u"Ω.wav"_s});

    ASSERT_TRUE(std::holds_alternative<Failure>(bytes));
    EXPECT_EQ(std::get<Failure>(bytes).sentence,
              u"A(z) „Ω.wav” nevű fájl nem kerülhet a listára, mert a nevében a(z) „Ω” betű nem írható le "
              "a közép-európai kódlapon."_s);
}

TEST_F(SettingsLines, never_change_a_name_whose_accents_are_separate) {
    const FileContent bytes = beállítássorok::bájtok({u"e\u0301n.wav"_s});

    ASSERT_TRUE(std::holds_alternative<Failure>(bytes));
    EXPECT_EQ(std::get<Failure>(bytes).sentence,
              u"A(z) „e\u0301n.wav” nevű fájl nem kerülhet a listára, mert a nevében a(z) „e\u0301” betű ékezete "
              "külön jel, és az nem írható le a közép-európai kódlapon."_s);
}

TEST_F(SettingsLines, are_read_behind_one_that_is_longer_than_any_name) {
    EXPECT_EQ(lines_of(" 1\r\n" + QByteArray(1 << 20, 'x') + "\r\na.wav\r\n"), QStringList({u" 1"_s, u"a.wav"_s}));
}

TEST_F(SettingsLines, refuse_a_name_that_would_be_read_as_two) {
    const FileContent bytes = beállítássorok::bájtok({u"a.wav"_s, u"b\nc.wav"_s});

    ASSERT_TRUE(std::holds_alternative<Failure>(bytes));
    EXPECT_EQ(std::get<Failure>(bytes).sentence,
              u"A(z) „b c.wav” nevű fájl nem kerülhet a listára, mert a nevében sortörés van."_s);
}

}  // namespace
