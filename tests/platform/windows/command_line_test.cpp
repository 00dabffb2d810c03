#include <gtest/gtest.h>

#include "platform/command_line.h"
#include "platform/windows/command_line_text.h"
#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

TEST(CommandLine, is_empty_behind_the_name_of_the_program_alone) {
    EXPECT_EQ(behind_program_name(u"zimbora.exe"_s), QString());
    EXPECT_EQ(behind_program_name(u"\"C:\\Program Files\\Zimbora\\zimbora.exe\" "_s), QString());
}

TEST(CommandLine, keeps_the_quotation_marks_of_the_path) {
    EXPECT_EQ(behind_program_name(u"\"C:\\A b\\zimbora.exe\" \"D:\\az én szavaim.szs\""_s),
              u"\"D:\\az én szavaim.szs\""_s);
    EXPECT_EQ(behind_program_name(u"C:\\zimbora.exe   \"D:\\a  b.szs\"  "_s), u"\"D:\\a  b.szs\""_s);
}

TEST(CommandLine, takes_a_path_without_quotation_marks_as_it_is) {
    EXPECT_EQ(behind_program_name(u"zimbora D:\\a b.szs"_s), u"D:\\a b.szs"_s);
}

TEST(CommandLine, of_a_name_whose_quotation_does_not_end_is_empty) {
    EXPECT_EQ(behind_program_name(u"\"C:\\zimbora.exe D:\\a.szs"_s), QString());
}

TEST(CommandLine, of_this_process_ends_with_its_last_argument) {
    const auto arguments = testing::internal::GetArgvs();

    const QString text = command_line_text();

    if (arguments.size() > 1) {
        EXPECT_TRUE(text.endsWith(QString::fromStdString(arguments.back()))) << text.toStdString();
    } else {
        EXPECT_EQ(text, QString());
    }
}

}  // namespace
