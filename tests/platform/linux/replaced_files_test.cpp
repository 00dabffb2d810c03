#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include "platform/files.h"
#include "support/files_for_tests.h"
#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

class ReplacedFiles : public testing::Test {
  protected:
    [[nodiscard]] QString in_folder(const QString &name) const { return folder_.filePath(name); }

    QTemporaryDir folder_;
};

TEST_F(ReplacedFiles, have_names_of_up_to_255_bytes_and_can_be_saved_again) {
    for (const int size : {248, 249, 250, 254, 255}) {
        const QString path = in_folder(QString(size - 4, u'x') + u".szs"_s);

        EXPECT_FALSE(files::replace_whole(path, "old"));
        EXPECT_FALSE(files::replace_whole(path, "new"));

        EXPECT_EQ(read_file(path), "new") << size;
    }
    const auto failure = files::replace_whole(in_folder(QString(256, u'x')), "x");
    ASSERT_TRUE(failure);
    EXPECT_TRUE(failure->sentence.endsWith(u"túl hosszú a neve."_s));
}

TEST_F(ReplacedFiles, keep_their_group_owner_permissions_and_attributes) {
    const QString path = in_folder(u"lista.szs"_s);
    const QByteArray name = QFile::encodeName(path);
    write_file(path, "old");
    if (getuid() == 0) {
        ASSERT_EQ(chown(name.constData(), 1234, 4321), 0);
    }
    ASSERT_EQ(chmod(name.constData(), 0664), 0);
    if (setxattr(name.constData(), "user.comment", "saját", 6, 0) != 0)
        GTEST_SKIP() << "no extended attributes in " << qPrintable(folder_.path());
    struct stat before {};
    ASSERT_EQ(stat(name.constData(), &before), 0);

    EXPECT_FALSE(files::replace_whole(path, "new"));

    struct stat after {};
    ASSERT_EQ(stat(name.constData(), &after), 0);
    EXPECT_EQ(after.st_uid, before.st_uid);
    EXPECT_EQ(after.st_gid, before.st_gid);
    EXPECT_EQ(after.st_mode, before.st_mode);
    EXPECT_NE(after.st_ino, before.st_ino);
    char value[10] = {};
    EXPECT_EQ(getxattr(name.constData(), "user.comment", value, sizeof value), 6);
    EXPECT_STREQ(value, "saját");
}

TEST_F(ReplacedFiles, are_replaced_where_their_links_lead) {
    QDir(folder_.path()).mkdir(u"messze"_s);
    write_file(in_folder(u"messze/lista.szs"_s), "old");
    ASSERT_EQ(symlink("messze/lista.szs", QFile::encodeName(in_folder(u"egy.szs"_s)).constData()), 0);
    ASSERT_EQ(symlink("egy.szs", QFile::encodeName(in_folder(u"kettő.szs"_s)).constData()), 0);
    ASSERT_EQ(symlink("messze/új.szs", QFile::encodeName(in_folder(u"sehova.szs"_s)).constData()), 0);
    ASSERT_EQ(symlink("kör.szs", QFile::encodeName(in_folder(u"kör.szs"_s)).constData()), 0);

    EXPECT_FALSE(files::replace_whole(in_folder(u"kettő.szs"_s), "new"));
    EXPECT_FALSE(files::replace_whole(in_folder(u"sehova.szs"_s), "there"));
    const auto failure = files::replace_whole(in_folder(u"kör.szs"_s), "x");

    EXPECT_EQ(read_file(in_folder(u"messze/lista.szs"_s)), "new");
    EXPECT_EQ(read_file(in_folder(u"messze/új.szs"_s)), "there");
    EXPECT_TRUE(QFileInfo(in_folder(u"kettő.szs"_s)).isSymLink());
    EXPECT_TRUE(QFileInfo(in_folder(u"egy.szs"_s)).isSymLink());
    ASSERT_TRUE(failure);
    EXPECT_TRUE(failure->sentence.endsWith(u"a hivatkozások körbe vezetnek."_s));
}

TEST_F(ReplacedFiles, leave_another_name_of_the_same_file_with_what_it_was) {
    write_file(in_folder(u"lista.szs"_s), "old");
    ASSERT_EQ(link(QFile::encodeName(in_folder(u"lista.szs"_s)).constData(),
                   QFile::encodeName(in_folder(u"másik.szs"_s)).constData()),
              0);

    EXPECT_FALSE(files::replace_whole(in_folder(u"lista.szs"_s), "new"));

    EXPECT_EQ(read_file(in_folder(u"lista.szs"_s)), "new");
    EXPECT_EQ(read_file(in_folder(u"másik.szs"_s)), "old");
}

}  // namespace
