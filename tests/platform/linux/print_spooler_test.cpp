#include "platform/print_spooler.h"

#include <gtest/gtest.h>

#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

TEST(PrintSpooler, tells_why_it_does_not_take_a_document) {
    qputenv("CUPS_SERVER", "/nowhere/socket");

    const auto reason = make_print_spooler()->print(u"Gone"_s, u"title"_s, "%PDF-1.4");

    ASSERT_TRUE(reason);
    EXPECT_EQ(*reason, u"a nyomtató nem található, vagy a nyomtatókiszolgáló nem fut."_s);
    qunsetenv("CUPS_SERVER");
}

}  // namespace
