#include "platform/linux/clipboard_text.h"

#include <gtest/gtest.h>

#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

TEST(ClipboardText, is_read_in_the_encoding_of_its_kind) {
    EXPECT_EQ(clipboard_text::decode("UTF8_STRING", "f\xc5\xb1t\xc5\x91"), u"fűtő"_s);
    EXPECT_EQ(clipboard_text::decode("text/plain;charset=utf-8", "f\xc5\xb1t\xc5\x91"), u"fűtő"_s);
    EXPECT_EQ(clipboard_text::decode("text/plain;charset=UTF-8", "f\xc5\xb1t\xc5\x91"), u"fűtő"_s);
    EXPECT_EQ(clipboard_text::decode("STRING", "h\xe1z"), u"ház"_s);
    EXPECT_EQ(clipboard_text::decode("COMPOUND_TEXT", "h\xe1z"), u"ház"_s);
}

TEST(ClipboardText, without_a_known_encoding_is_utf_8_or_else_in_the_code_page) {
    EXPECT_EQ(clipboard_text::decode("text/plain", "f\xc5\xb1t\xc5\x91"), u"fűtő"_s);
    EXPECT_EQ(clipboard_text::decode("text/plain", "f\xfbt\xf5"), u"fűtő"_s);
    EXPECT_EQ(clipboard_text::decode("TEXT", "f\xc5\xb1t\xc5\x91"), u"fűtő"_s);
}

TEST(ClipboardText, is_none_of_another_kind_or_with_changing_character_sets) {
    EXPECT_EQ(clipboard_text::decode("image/png", "apple"), std::nullopt);
    EXPECT_EQ(clipboard_text::decode("", "apple"), std::nullopt);
    EXPECT_EQ(clipboard_text::decode("COMPOUND_TEXT", "f\x1b-B\xfbt"), std::nullopt);
}

TEST(ClipboardText, has_no_end_of_text_behind_it) {
    EXPECT_EQ(clipboard_text::decode("STRING", QByteArrayView("apple\0", 6)), u"apple"_s);
}

}  // namespace
