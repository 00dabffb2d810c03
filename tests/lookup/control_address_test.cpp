#include "lookup/control_address.h"

#include <gtest/gtest.h>

#include "support/printing.h"

namespace {

QString address(const char16_t *text) {
    return address_of_control(QString::fromUtf16(text)).toString(QUrl::PrettyDecoded);
}

TEST(ControlAddress, of_a_file_is_the_same_as_path_and_as_address) {
    EXPECT_EQ(address(u"C:\\Zimborakavaro\\help\\Kavaro súgó.mht"),
              QStringLiteral("file:///C:/Zimborakavaro/help/Kavaro súgó.mht"));
    EXPECT_EQ(address(u"file:///C:/Zimborakavaro/help/Kavaro%20s%C3%BAg%C3%B3.mht"),
              QStringLiteral("file:///C:/Zimborakavaro/help/Kavaro súgó.mht"));
}

TEST(ControlAddress, within_an_archive_counts_as_the_archive) {
    EXPECT_EQ(address(u"mhtml:file://C:\\help\\a.mht!thismessage:/index.html"),
              QStringLiteral("file:///C:/help/a.mht"));
    EXPECT_EQ(address(u"MHTML:C:\\help\\a!.mht!index.html"), QStringLiteral("file:///C:/help/a!.mht"));
    EXPECT_EQ(address(u"mhtml:C:\\help\\a.mht"), QStringLiteral("file:///C:/help/a.mht"));
}

TEST(ControlAddress, of_the_web_is_left_as_it_is) {
    EXPECT_EQ(address(u"https://x.hu/a?b#c"), QStringLiteral("https://x.hu/a?b#c"));
}

TEST(ControlAddress, that_is_a_blank_page_or_the_content_of_a_frame_is_no_step) {
    EXPECT_TRUE(is_part_of_page(QUrl(QStringLiteral("about:blank")), true));
    EXPECT_TRUE(is_part_of_page(QUrl(QStringLiteral("data:text/html,x")), false));
    EXPECT_FALSE(is_part_of_page(QUrl(QStringLiteral("data:text/html,x")), true));
    EXPECT_FALSE(is_part_of_page(QUrl(QStringLiteral("about:home")), true));
    EXPECT_FALSE(is_part_of_page(QUrl(QStringLiteral("https://x.hu/")), false));
}

}  // namespace
