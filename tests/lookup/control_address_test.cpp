#include "lookup/control_address.h"

#include <gtest/gtest.h>

#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

QString address(const char16_t *text) {
    return address_of_control(QString::fromUtf16(text)).toString(QUrl::PrettyDecoded);
}

TEST(ControlAddress, of_a_file_is_the_same_as_path_and_as_address) {
    EXPECT_EQ(address(u"C:\\Zimborakavaro\\help\\Kavaro súgó.mht"), u"file:///C:/Zimborakavaro/help/Kavaro súgó.mht"_s);
    EXPECT_EQ(address(u"file:///C:/Zimborakavaro/help/Kavaro%20s%C3%BAg%C3%B3.mht"),
              u"file:///C:/Zimborakavaro/help/Kavaro súgó.mht"_s);
}

TEST(ControlAddress, within_an_archive_counts_as_the_archive) {
    EXPECT_EQ(address(u"mhtml:file://C:\\help\\a.mht!thismessage:/index.html"), u"file:///C:/help/a.mht"_s);
    EXPECT_EQ(address(u"MHTML:C:\\help\\a!.mht!index.html"), u"file:///C:/help/a!.mht"_s);
    EXPECT_EQ(address(u"mhtml:C:\\help\\a.mht"), u"file:///C:/help/a.mht"_s);
}

TEST(ControlAddress, of_the_web_is_left_as_it_is) {
    EXPECT_EQ(address(u"https://x.hu/a?b#c"), u"https://x.hu/a?b#c"_s);
}

TEST(ControlAddress, that_is_a_blank_page_or_the_content_of_a_frame_is_no_step) {
    EXPECT_TRUE(is_part_of_page(QUrl(u"about:blank"_s), true));
    EXPECT_TRUE(is_part_of_page(QUrl(u"data:text/html,x"_s), false));
    EXPECT_FALSE(is_part_of_page(QUrl(u"data:text/html,x"_s), true));
    EXPECT_FALSE(is_part_of_page(QUrl(u"about:home"_s), true));
    EXPECT_FALSE(is_part_of_page(QUrl(u"https://x.hu/"_s), false));
}

}  // namespace
