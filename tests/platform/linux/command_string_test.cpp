#include "platform/linux/command_string.h"

#include <gtest/gtest.h>

#include "platform/multimedia_commands.h"
#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

QStringList words(const QString &command) {
    return words_of_command(command).value_or(QStringList(u"(nothing)"_s));
}

TEST(CommandString, has_its_words_between_any_number_of_blanks) {
    EXPECT_EQ(words(u"  Status  midi\tmode "_s), (QStringList{u"Status"_s, u"midi"_s, u"mode"_s}));
}

TEST(CommandString, has_no_words_when_it_is_empty_or_blank) {
    EXPECT_EQ(words(QString()), QStringList());
    EXPECT_EQ(words(u"  \t "_s), QStringList());
}

TEST(CommandString, keeps_blanks_between_quotation_marks) {
    EXPECT_EQ(words(u"open \" a  b \" type"_s), (QStringList{u"open"_s, u" a  b "_s, u"type"_s}));
}

TEST(CommandString, takes_two_quotation_marks_for_one_within_a_quotation) {
    EXPECT_EQ(words(u"\"a\"\"b\""_s), QStringList(u"a\"b"_s));
    EXPECT_EQ(words(u"\"\"\"\""_s), QStringList(u"\""_s));
}

TEST(CommandString, has_an_empty_word_between_two_quotation_marks) {
    EXPECT_EQ(words(u"open \"\" x"_s), (QStringList{u"open"_s, QString(), u"x"_s}));
}

TEST(CommandString, has_no_words_when_the_last_quotation_is_not_closed) {
    for (const char *command : {"\"", "open \"a b", "open \"a\"\"", "a \"b\" \"c"})
        EXPECT_EQ(words_of_command(QString::fromLatin1(command)), std::nullopt) << command;
}

TEST(CommandString, gives_every_quoted_path_back_as_one_word) {
    for (const char16_t *text : {u"/a b.wav", u"\"", u"\"\"", u"a\" type sequencer alias b", u"\" ", u"őű \"Ω\".mid",
                                 u"", u"x\"", u"\"x", u"line\nbreak"}) {
        const QString path = QString::fromUtf16(text);

        EXPECT_EQ(words(u"open "_s + quoted_for_command(path) + u" type waveaudio"_s),
                  (QStringList{u"open"_s, path, u"type"_s, u"waveaudio"_s}));
    }
}

}  // namespace
