#include "dictionary/meanings.h"

#include <gtest/gtest.h>

#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

TEST(Meanings, are_each_followed_by_the_separator) {
    EXPECT_EQ(jelentések(u"megy÷jár÷"_s), QStringList({u"megy"_s, u"jár"_s}));
}

TEST(Meanings, leave_out_what_stands_behind_the_last_separator) {
    EXPECT_EQ(jelentések(u"megy÷maradék"_s), QStringList{u"megy"_s});
}

TEST(Meanings, are_none_without_a_separator) {
    EXPECT_TRUE(jelentések(u"megy"_s).isEmpty());
    EXPECT_TRUE(jelentések(QString()).isEmpty());
}

}  // namespace
