#include "platform/drive_c.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include "support/printing.h"

namespace {

TEST(DriveC, puts_a_fixed_place_under_its_root) {
    const DriveC drive(QStringLiteral("/hely/meghajtó"));

    EXPECT_EQ(drive.path(u"c:\\zbrmk\\angol\\kisablak.ini"), QStringLiteral("/hely/meghajtó/zbrmk/angol/kisablak.ini"));
}

TEST(DriveC, is_the_folder_that_the_environment_names) {
    const QString named = QDir::tempPath() + QStringLiteral("/másik");
    qputenv("ZIMBORA_C", named.toLocal8Bit());
    const DriveC drive = DriveC::of_this_user();
    qunsetenv("ZIMBORA_C");

    EXPECT_EQ(drive.path(u"c:\\zbrmkfnh.ini"), named + QStringLiteral("/zbrmkfnh.ini"));
}

TEST(DriveC, makes_its_root_with_the_folders_above_it) {
    const QTemporaryDir place;
    const DriveC drive(place.filePath(QStringLiteral("a/b")));

    EXPECT_TRUE(drive.make_root());

    EXPECT_TRUE(QFileInfo(place.filePath(QStringLiteral("a/b"))).isDir());
}

}  // namespace
