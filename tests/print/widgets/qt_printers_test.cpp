#include "print/widgets/qt_printers.h"

#include <gtest/gtest.h>

#include "print/font_choice.h"
#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

/// The toolkit's printers where no print server runs.
class ToolkitsPrinters : public testing::Test {
  protected:
    ToolkitsPrinters() { qputenv("CUPS_SERVER", "/nowhere/socket"); }
    ~ToolkitsPrinters() override { qunsetenv("CUPS_SERVER"); }

    QtPrinters printers_{make_print_spooler()};
};

TEST_F(ToolkitsPrinters, have_the_fonts_of_the_system) {
    const QStringList fonts = printers_.fonts(QString());

    for (const char *name : {"Liberation Serif", "Liberation Sans", "DejaVu Serif"})
        EXPECT_TRUE(fonts.contains(QString::fromUtf8(name))) << name;
    EXPECT_TRUE(talpas_betűtípus(fonts.at(választott_betűtípus(fonts, QString(), talpas_betűtípus))));
}

TEST_F(ToolkitsPrinters, tell_that_a_printer_has_gone) {
    const PrintJobResult result = printers_.print(u"Gone"_s, u"title"_s);

    const auto *failure = std::get_if<Failure>(&result);
    ASSERT_NE(failure, nullptr);
    EXPECT_EQ(failure->sentence,
              u"A(z) „Gone” nyomtatóval nem sikerült nyomtatni: a nyomtató nem található, "
              "vagy a nyomtatókiszolgáló nem fut."_s);
}

TEST_F(ToolkitsPrinters, show_pages_like_those_of_a_pdf_file) {
    const auto preview = printers_.preview(QString());

    EXPECT_EQ(preview->pages().page_width(), 575 * 20);
    EXPECT_EQ(preview->pages().page_height(), 822 * 20);
    EXPECT_EQ(preview->pages().paper_size(), QSizeF(595 * 20, 842 * 20));
}

}  // namespace
