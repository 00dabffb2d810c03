#include "platform/print_spooler.h"

#include <gtest/gtest.h>

#include "support/printing.h"

namespace {

TEST(PrintSpooler, tells_why_it_does_not_take_a_document) {
    qputenv("CUPS_SERVER", "/nowhere/socket");

    const auto reason = make_print_spooler()->print(QStringLiteral("Gone"), QStringLiteral("title"), "%PDF-1.4");

    ASSERT_TRUE(reason);
    EXPECT_EQ(*reason, QStringLiteral("a nyomtató nem található, vagy a nyomtatókiszolgáló nem fut."));
    qunsetenv("CUPS_SERVER");
}

}  // namespace
