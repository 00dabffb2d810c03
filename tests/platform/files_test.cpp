#include "platform/files.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "support/files_for_tests.h"
#include "support/printing.h"

namespace {

class Files : public testing::Test {
  protected:
    [[nodiscard]] QString in_folder(const QString &name) const { return folder_.filePath(name); }

    QTemporaryDir folder_;
};

TEST_F(Files, reads_what_was_written) {
    const QString path = in_folder(QStringLiteral("szavak ő.szs"));
    const QByteArray bytes("a\0b\r\n", 5);

    EXPECT_FALSE(files::replace_whole(path, bytes));

    EXPECT_EQ(std::get<QByteArray>(files::read_whole(path)), bytes);
}

TEST_F(Files, says_why_a_missing_file_cannot_be_read) {
    const FileContent content = files::read_whole(in_folder(QStringLiteral("nincs.szs")));

    EXPECT_TRUE(std::get<Failure>(content).sentence.endsWith(
        QStringLiteral("nincs.szs” fájl nem olvasható: a fájl nem létezik.")));
}

TEST_F(Files, says_why_a_folder_cannot_be_read) {
    const FileContent content = files::read_whole(folder_.path());

    EXPECT_TRUE(std::get<Failure>(content).sentence.endsWith(QStringLiteral("ez egy mappa.")));
}

TEST_F(Files, says_why_a_file_cannot_be_written_into_a_missing_folder) {
    const auto failure = files::replace_whole(in_folder(QStringLiteral("nincs/lista.szs")), "a:b\r\n");

    ASSERT_TRUE(failure);
    EXPECT_TRUE(failure->sentence.endsWith(QStringLiteral("fájl nem írható: a mappa nem létezik.")));
}

TEST_F(Files, takes_only_a_file_for_an_existing_file) {
    write_file(in_folder(QStringLiteral("van.szs")), "");

    EXPECT_TRUE(files::exists(in_folder(QStringLiteral("van.szs"))));
    EXPECT_FALSE(files::exists(in_folder(QStringLiteral("nincs.szs"))));
    EXPECT_FALSE(files::exists(folder_.path()));
}

}  // namespace
