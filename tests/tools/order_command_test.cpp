#include <gtest/gtest.h>

#include <QProcess>
#include <QTemporaryDir>

#include "support/files_for_tests.h"
#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

struct Outcome {
    int code;
    QString out;
    QString error;
};

Outcome order(const QStringList &arguments) {
    QProcess process;
    process.start(u"" ZIMBORA_ORDER ""_s, arguments);
    EXPECT_TRUE(process.waitForFinished());
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

TEST(OrderCommand, sorts_the_file_and_shows_its_progress) {
    const QTemporaryDir folder;
    write_file(folder.filePath(u"magyar.skt"_s), "t\xfbz\r\nalma\r\n");

    const Outcome outcome = order({folder.path()});

    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.out, u"Folyamatban...\n 1, 2\n 1\n 2\nMűvelet kész.\n"_s);
    EXPECT_EQ(read_file(folder.filePath(u"magyarvg.skt"_s)), "ALMA\r\nT\xdbZ\r\n");
}

TEST(OrderCommand, names_the_missing_file) {
    const QTemporaryDir folder;

    const Outcome outcome = order({folder.path()});

    EXPECT_EQ(outcome.code, 1);
    EXPECT_TRUE(outcome.error.contains(u"magyar.skt"_s));
}

TEST(OrderCommand, explains_itself_in_hungarian_and_refuses_other_options) {
    EXPECT_TRUE(order({u"--help"_s}).out.startsWith(u"Használat: zimbora-order"_s));
    EXPECT_EQ(order({u"--nincs"_s}).code, 2);
    EXPECT_EQ(order({u"a"_s, u"b"_s}).code, 2);
}

}  // namespace
