#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "platform/drive_c.h"
#include "platform/files.h"
#include "support/files_for_tests.h"
#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

// The account that runs the tests may write the root of its drive C.

TEST(DriveCRoot, is_the_drive_itself_where_it_takes_files) {
    qunsetenv("ZIMBORA_C");
    const QStringList before = QDir(u"C:/"_s).entryList(QDir::Files | QDir::Hidden);

    const DriveC drive = DriveC::of_this_user();

    EXPECT_EQ(drive.path(u"c:\\zbrmkfnh.ini"), u"C:/zbrmkfnh.ini"_s);
    EXPECT_TRUE(drive.make_root());
    EXPECT_EQ(QDir(u"C:/"_s).entryList(QDir::Files | QDir::Hidden), before) << "the trial left a file";
}

TEST(DriveCRoot, holds_the_fixed_files_where_they_say) {
    qunsetenv("ZIMBORA_C");
    const QString place = DriveC::of_this_user().path(u"c:\\zimbora test\\kisablak.ini");
    QDir().mkpath(u"C:/zimbora test"_s);

    EXPECT_FALSE(files::replace_whole(place, " 1\r\n"));

    EXPECT_EQ(read_file(u"c:\\zimbora test\\kisablak.ini"_s), " 1\r\n");
    EXPECT_TRUE(QDir(u"C:/zimbora test"_s).removeRecursively());
}

}  // namespace
