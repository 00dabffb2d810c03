#include "lookup/mini_window_file.h"

#include <gtest/gtest.h>

#include "support/printing.h"

namespace {

using kisablakfájl::értékek;

TEST(MiniWindowFile, writes_exactly_these_bytes) {
    EXPECT_EQ(kisablakfájl::ír({12000, -150, 1}), " 12000 \r\n-150 \r\n 1 \r\n");
}

TEST(MiniWindowFile, reads_what_it_wrote) {
    for (const értékek &mit : {értékek{0, 0, 0}, értékek{-2147483647 - 1, 2147483647, -1}, értékek{7680, 5760, 1}})
        EXPECT_EQ(kisablakfájl::olvas(kisablakfájl::ír(mit)), mit);
}

TEST(MiniWindowFile, takes_blanks_commas_and_line_ends_for_separators) {
    EXPECT_EQ(kisablakfájl::olvas("1,2\n3"), (értékek{1, 2, 3}));
    EXPECT_EQ(kisablakfájl::olvas("  1   2\r\n\r\n3 rest"), (értékek{1, 2, 3}));
}

TEST(MiniWindowFile, keeps_values_off_every_screen) {
    EXPECT_EQ(kisablakfájl::olvas(" 999999 \r\n-999999 \r\n 0 \r\n"), (értékek{999999, -999999, 0}));
}

TEST(MiniWindowFile, has_its_values_in_the_beginning_of_any_number_of_bytes) {
    EXPECT_EQ(kisablakfájl::olvas(" 1 \r\n 2 \r\n 3 \r\n" + QByteArray(1 << 20, '7')), (értékek{1, 2, 3}));
    EXPECT_EQ(kisablakfájl::olvas(QByteArray(1 << 20, ' ') + "1 2 3"), std::nullopt);
}

TEST(MiniWindowFile, has_no_values_without_three_numbers_that_fit) {
    for (const char *bytes :
         {"", " 1 \r\n 2 \r\n", "rubbish here too", "1 2 x", "1.5 2 3", "99999999999 0 0", "0 0 70000"})
        EXPECT_EQ(kisablakfájl::olvas(bytes), std::nullopt) << bytes;
}

}  // namespace
