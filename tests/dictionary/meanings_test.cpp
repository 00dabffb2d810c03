#include "dictionary/meanings.h"

#include <gtest/gtest.h>

#include "support/printing.h"

namespace {

TEST(Meanings, are_each_followed_by_the_separator) {
    EXPECT_EQ(jelentések(QStringLiteral("megy÷jár÷")), QStringList({QStringLiteral("megy"), QStringLiteral("jár")}));
}

TEST(Meanings, leave_out_what_stands_behind_the_last_separator) {
    EXPECT_EQ(jelentések(QStringLiteral("megy÷maradék")), QStringList{QStringLiteral("megy")});
}

TEST(Meanings, are_none_without_a_separator) {
    EXPECT_TRUE(jelentések(QStringLiteral("megy")).isEmpty());
    EXPECT_TRUE(jelentések(QString()).isEmpty());
}

}  // namespace
