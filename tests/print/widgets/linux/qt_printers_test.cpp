#include "print/widgets/qt_printers.h"

#include <gtest/gtest.h>

#include "support/printing.h"

namespace {

TEST(PrintersWithoutServer, are_none) {
    qputenv("CUPS_SERVER", "/nowhere/socket");

    EXPECT_EQ(QtPrinters(nullptr).names(), QStringList());

    qunsetenv("CUPS_SERVER");
}

}  // namespace
