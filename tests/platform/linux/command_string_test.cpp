#include "platform/linux/command_string.h"

#include <gtest/gtest.h>

#include "platform/multimedia_commands.h"
#include "support/printing.h"

namespace {

QStringList words(const QString &command) {
    return words_of_command(command).value_or(QStringList(QStringLiteral("(nothing)")));
}

TEST(CommandString, has_its_words_between_any_number_of_blanks) {
    EXPECT_EQ(words(QStringLiteral("  Status  midi\tmode ")),
              (QStringList{QStringLiteral("Status"), QStringLiteral("midi"), QStringLiteral("mode")}));
}

TEST(CommandString, has_no_words_when_it_is_empty_or_blank) {
    EXPECT_EQ(words(QString()), QStringList());
    EXPECT_EQ(words(QStringLiteral("  \t ")), QStringList());
}

TEST(CommandString, keeps_blanks_between_quotation_marks) {
    EXPECT_EQ(words(QStringLiteral("open \" a  b \" type")),
              (QStringList{QStringLiteral("open"), QStringLiteral(" a  b "), QStringLiteral("type")}));
}

TEST(CommandString, takes_two_quotation_marks_for_one_within_a_quotation) {
    EXPECT_EQ(words(QStringLiteral("\"a\"\"b\"")), QStringList(QStringLiteral("a\"b")));
    EXPECT_EQ(words(QStringLiteral("\"\"\"\"")), QStringList(QStringLiteral("\"")));
}

TEST(CommandString, has_an_empty_word_between_two_quotation_marks) {
    EXPECT_EQ(words(QStringLiteral("open \"\" x")),
              (QStringList{QStringLiteral("open"), QString(), QStringLiteral("x")}));
}

TEST(CommandString, has_no_words_when_the_last_quotation_is_not_closed) {
    for (const char *command : {"\"", "open \"a b", "open \"a\"\"", "a \"b\" \"c"})
        EXPECT_EQ(words_of_command(QString::fromLatin1(command)), std::nullopt) << command;
}

TEST(CommandString, gives_every_quoted_path_back_as_one_word) {
    for (const char16_t *text : {u"/a b.wav", u"\"", u"\"\"", u"a\" type sequencer alias b", u"\" ", u"őű \"Ω\".mid",
                                 u"", u"x\"", u"\"x", u"line\nbreak"}) {
        const QString path = QString::fromUtf16(text);

        EXPECT_EQ(words(QStringLiteral("open ") + quoted_for_command(path) + QStringLiteral(" type waveaudio")),
                  (QStringList{QStringLiteral("open"), path, QStringLiteral("type"), QStringLiteral("waveaudio")}));
    }
}

}  // namespace
