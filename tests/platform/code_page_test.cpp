#include "platform/code_page.h"

#include <gtest/gtest.h>

#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

QByteArray all_bytes() {
    QByteArray bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes.append(static_cast<char>(byte));
    return bytes;
}

TEST(CodePage, has_the_hungarian_letters_where_windows_1250_has_them) {
    const QByteArray bytes("\xe1\xe9\xed\xf3\xf6\xf5\xfa\xfc\xfb \xc1\xc9\xcd\xd3\xd6\xd5\xda\xdc\xdb \xf7");

    EXPECT_EQ(code_page::decode(bytes), u"áéíóöőúüű ÁÉÍÓÖŐÚÜŰ ÷"_s);
    EXPECT_EQ(code_page::encode(u"áéíóöőúüű ÁÉÍÓÖŐÚÜŰ ÷"_s), bytes);
}

TEST(CodePage, gives_every_byte_back_unchanged) {
    const QByteArray bytes = all_bytes();

    EXPECT_EQ(code_page::encode(code_page::decode(bytes)), bytes);
}

TEST(CodePage, refuses_a_character_it_lacks_instead_of_replacing_it) {
    EXPECT_EQ(code_page::encode(u"smör û"_s), std::nullopt);
    EXPECT_EQ(code_page::first_missing(u"smör û"_s), u"û"_s);
    EXPECT_EQ(code_page::first_missing(u"a 😀 b"_s), u"😀"_s);
    EXPECT_EQ(code_page::first_missing(u"tűző"_s), QString());
}

TEST(CodePage, joins_a_letter_and_its_separate_accent) {
    EXPECT_EQ(code_page::encode(u"a\u0301"_s), QByteArray("\xe1"));
}

TEST(CodePage, raises_letters_and_leaves_those_without_a_capital) {
    EXPECT_EQ(code_page::upper("\xe1rv\xedzt\xfbr\xf5 t\xfck\xf6r \xdf\xb5 1"),
              QByteArray("\xc1RV\xcdZT\xdbR\xd5 T\xdcK\xd6R \xdf\xb5 1"));
}

}  // namespace
