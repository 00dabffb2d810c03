#include "platform/drive_c.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

TEST(DriveC, puts_a_fixed_place_under_its_root) {
    const DriveC drive(u"/hely/meghajtó"_s);

    EXPECT_EQ(drive.path(u"c:\\zbrmk\\angol\\kisablak.ini"), u"/hely/meghajtó/zbrmk/angol/kisablak.ini"_s);
}

TEST(DriveC, is_the_folder_that_the_environment_names) {
    const QString named = QDir::tempPath() + u"/másik"_s;
    qputenv("ZIMBORA_C", named.toLocal8Bit());
    const DriveC drive = DriveC::of_this_user();
    qunsetenv("ZIMBORA_C");

    EXPECT_EQ(drive.path(u"c:\\zbrmkfnh.ini"), named + u"/zbrmkfnh.ini"_s);
}

TEST(DriveC, makes_its_root_with_the_folders_above_it) {
    const QTemporaryDir place;
    const DriveC drive(place.filePath(u"a/b"_s));

    EXPECT_TRUE(drive.make_root());

    EXPECT_TRUE(QFileInfo(place.filePath(u"a/b"_s)).isDir());
}

}  // namespace
