#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QFile>
#include <QTemporaryDir>

#include "dictionary/byte_source.h"

using namespace Qt::StringLiterals;

namespace {

TEST(FileSource, is_not_open_for_a_pipe_or_a_device_and_waits_for_neither) {
    const QTemporaryDir folder;
    const QString pipe = folder.filePath(u"am.txt"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);

    EXPECT_FALSE(FileSource(pipe).is_open());
    EXPECT_FALSE(FileSource(u"/dev/zero"_s).is_open());
}

}  // namespace
