#include <gtest/gtest.h>

#include <QProcess>
#include <QTemporaryDir>

#include "support/files_for_tests.h"
#include "support/printing.h"

namespace {

struct Outcome {
    int code;
    QString out;
    QString error;
};

Outcome order(const QStringList &arguments) {
    QProcess process;
    process.start(QStringLiteral(ZIMBORA_ORDER), arguments);
    EXPECT_TRUE(process.waitForFinished());
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

TEST(OrderCommand, sorts_the_file_and_shows_its_progress) {
    const QTemporaryDir folder;
    write_file(folder.filePath(QStringLiteral("magyar.skt")), "t\xfbz\r\nalma\r\n");

    const Outcome outcome = order({folder.path()});

    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.out, QStringLiteral("Folyamatban...\n1,2\n1\n2\nMűvelet kész.\n"));
    EXPECT_EQ(read_file(folder.filePath(QStringLiteral("magyarvg.skt"))), "ALMA\r\nT\xdbZ\r\n");
}

TEST(OrderCommand, names_the_missing_file) {
    const QTemporaryDir folder;

    const Outcome outcome = order({folder.path()});

    EXPECT_EQ(outcome.code, 1);
    EXPECT_TRUE(outcome.error.contains(QStringLiteral("magyar.skt")));
}

TEST(OrderCommand, explains_itself_in_hungarian_and_refuses_other_options) {
    EXPECT_TRUE(order({QStringLiteral("--help")}).out.startsWith(QStringLiteral("Használat: zimbora-order")));
    EXPECT_EQ(order({QStringLiteral("--nincs")}).code, 2);
    EXPECT_EQ(order({QStringLiteral("a"), QStringLiteral("b")}).code, 2);
}

}  // namespace
