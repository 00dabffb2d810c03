#include "platform/browser_sandbox.h"

#include <gtest/gtest.h>
#include <unistd.h>

namespace {

constexpr const char *switched_off = "QTWEBENGINE_DISABLE_SANDBOX";

TEST(BrowserSandbox, is_switched_off_for_the_administrator_only) {
    qunsetenv(switched_off);

    static_cast<void>(prepare_browser_sandbox());

    EXPECT_EQ(qEnvironmentVariableIntValue(switched_off) != 0, geteuid() == 0);
}

TEST(BrowserSandbox, is_not_switched_off_by_a_variable_that_says_nothing_or_no) {
    for (const char *value : {"", "0", " 0 "}) {
        qputenv(switched_off, value);

        static_cast<void>(prepare_browser_sandbox());

        EXPECT_EQ(qEnvironmentVariableIsSet(switched_off), geteuid() == 0) << value;
    }
    qunsetenv(switched_off);
}

TEST(BrowserSandbox, is_no_obstacle_when_the_user_has_switched_it_off) {
    qputenv(switched_off, "1");

    EXPECT_FALSE(prepare_browser_sandbox());

    qunsetenv(switched_off);
}

}  // namespace
