#include "lookup/help_archive.h"

#include <gtest/gtest.h>

#include "support/files_for_tests.h"
#include "support/printing.h"
#include "support/test_places.h"

using namespace Qt::StringLiterals;

namespace {

const QByteArray archive =
    "From: <Somebody>\r\nMIME-Version: 1.0\r\nContent-Type: multipart/related;\r\n\tboundary=\"----=_x\"\r\n\r\n"
    "------=_x\r\nContent-Type: text/html\r\n\r\n<p>Help</p>\r\n------=_x--\r\n";

TEST(HelpArchive, is_sound_with_headers_and_its_last_line) {
    EXPECT_EQ(archívumhiba(archive), std::nullopt);
    EXPECT_EQ(archívumhiba(QByteArray(archive).replace("\r\n", "\n")), std::nullopt);
    EXPECT_EQ(archívumhiba("content-type: text/html\r\n\r\n<p>Help</p>"), std::nullopt);
}

TEST(HelpArchive, of_the_program_is_sound) {
    const QByteArray bytes = read_file(test_places::program() + u"kavaro/help/Kavaro súgó.mht"_s);

    ASSERT_FALSE(bytes.isEmpty());
    EXPECT_EQ(archívumhiba(bytes), std::nullopt);
}

TEST(HelpArchive, is_damaged_when_it_is_empty_binary_or_cut) {
    EXPECT_EQ(archívumhiba(""), u"üres."_s);
    EXPECT_EQ(archívumhiba(QByteArray(5000, '\0')), u"nem webarchívum."_s);
    EXPECT_EQ(archívumhiba("<html>Content</html>"), u"nem webarchívum."_s);
    for (const qsizetype length : {archive.size() - 3, archive.size() / 2, qsizetype{10}})
        EXPECT_NE(archívumhiba(archive.first(length)), std::nullopt) << length;
    EXPECT_EQ(archívumhiba(archive.chopped(6)), u"a vége hiányzik."_s);
}

}  // namespace
