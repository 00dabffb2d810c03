#include "print/qt_printers.h"

#include <gtest/gtest.h>

#include <QSet>
#include <algorithm>

#include "print/font_choice.h"
#include "support/printing.h"

namespace {

/// A spooler that takes everything.
class FakeSpooler final : public PrintSpooler {
  public:
    std::optional<QString> print(const QString &, const QString &, const QByteArray &) override { return std::nullopt; }
};

/// The toolkit's printers where no print server runs.
class QtPrintersAlone : public testing::Test {
  protected:
    QtPrintersAlone() { qputenv("CUPS_SERVER", "/nowhere/socket"); }
    ~QtPrintersAlone() override { qunsetenv("CUPS_SERVER"); }

    QtPrinters printers_{std::make_unique<FakeSpooler>()};
};

TEST_F(QtPrintersAlone, are_none) {
    EXPECT_EQ(printers_.names(), QStringList());
}

TEST_F(QtPrintersAlone, have_the_fonts_of_the_system) {
    const QStringList fonts = printers_.fonts(QString());

    for (const char *name : {"Liberation Serif", "Liberation Sans", "DejaVu Serif"})
        EXPECT_TRUE(fonts.contains(QString::fromUtf8(name))) << name;
    EXPECT_TRUE(talpas_betűtípus(fonts.at(választott_betűtípus(fonts, talpas_betűtípus))));
}

TEST_F(QtPrintersAlone, tell_that_a_printer_has_gone) {
    const PrintJobResult result = printers_.print(QStringLiteral("Gone"), QStringLiteral("title"));

    const auto *failure = std::get_if<Failure>(&result);
    ASSERT_NE(failure, nullptr);
    EXPECT_EQ(failure->sentence,
              QStringLiteral("A(z) „Gone” nyomtatóval nem sikerült nyomtatni: a nyomtató nem található, "
                             "vagy a nyomtatókiszolgáló nem fut."));
}

TEST_F(QtPrintersAlone, show_pages_like_those_of_a_pdf_file) {
    const auto preview = printers_.preview(QString());

    EXPECT_EQ(preview->pages().page_width(), 575 * 20);
    EXPECT_EQ(preview->pages().page_height(), 822 * 20);
    EXPECT_EQ(preview->pages().paper_size(), QSizeF(595 * 20, 842 * 20));
}

TEST(PrintSpooler, tells_why_it_does_not_take_a_document) {
    qputenv("CUPS_SERVER", "/nowhere/socket");

    const auto reason = make_print_spooler()->print(QStringLiteral("Gone"), QStringLiteral("title"), "%PDF-1.4");

    ASSERT_TRUE(reason);
    EXPECT_EQ(*reason, QStringLiteral("a nyomtató nem található, vagy a nyomtatókiszolgáló nem fut."));
    qunsetenv("CUPS_SERVER");
}

}  // namespace
