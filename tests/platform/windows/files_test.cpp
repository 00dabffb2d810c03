#include "platform/files.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "support/files_for_tests.h"
#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

TEST(WriteProtectedFile, is_not_deleted_and_that_is_told) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"hang.wav"_s);
    write_file(path, "RIFF");
    ASSERT_TRUE(QFile::setPermissions(path, QFile::ReadOwner));

    const auto failure = files::remove(path);

    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->sentence, u"A(z) „%1” fájl nem törölhető: írásvédett."_s.arg(QDir::toNativeSeparators(path)));
    EXPECT_TRUE(QFile::exists(path));

    // So that the folder can go.
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
}

}  // namespace
