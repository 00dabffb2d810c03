#include "state/number_text.h"

#include <gtest/gtest.h>

#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

TEST(NumberText, has_a_blank_in_the_place_of_the_sign) {
    EXPECT_EQ(számszöveg(7), u" 7"_s);
    EXPECT_EQ(számszöveg(0), u" 0"_s);
}

TEST(NumberText, of_a_negative_number_begins_with_its_sign) {
    EXPECT_EQ(számszöveg(-5), u"-5"_s);
}

}  // namespace
