#include "platform/files.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "platform/unfinished_files.h"
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

TEST(WriteProtectedFile, is_not_replaced_and_that_is_told) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"lista.szs"_s);
    write_file(path, "old");
    ASSERT_TRUE(QFile::setPermissions(path, QFile::ReadOwner));

    const auto failure = files::replace_whole(path, "new");

    ASSERT_TRUE(failure);
    EXPECT_TRUE(failure->sentence.endsWith(u"nincs jogosultság az írásához."_s)) << failure->sentence.toStdString();
    EXPECT_EQ(read_file(path), "old");
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
}

TEST(FileInUse, is_not_replaced_and_that_is_told) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"lista.szs"_s);
    write_file(path, "old");
    HANDLE other = CreateFileW(QDir::toNativeSeparators(path).toStdWString().c_str(), GENERIC_READ, 0, nullptr,
                               OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(other, INVALID_HANDLE_VALUE);

    const auto failure = files::replace_whole(path, "new");
    CloseHandle(other);

    ASSERT_TRUE(failure);
    EXPECT_TRUE(failure->sentence.endsWith(u"egy másik program használja."_s)) << failure->sentence.toStdString();
    EXPECT_EQ(read_file(path), "old");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList{u"lista.szs"_s});
}

TEST(UnfinishedFile, of_this_file_is_removed_when_it_is_old_and_no_other) {
    const QTemporaryDir folder;
    const QDateTime long_ago = QDateTime::currentDateTime().addSecs(-3600);
    const QString old = unfinished_files::new_name_for(u"lista.szs"_s);
    const QString young = unfinished_files::new_name_for(u"lista.szs"_s);
    const QString of_another = unfinished_files::new_name_for(u"más.szs"_s);
    for (const QString &name : {old, young, of_another}) {
        write_file(folder.filePath(name), "x");
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        if (name != young) {
            ASSERT_TRUE(file.setFileTime(long_ago, QFileDevice::FileModificationTime));
        }
    }

    EXPECT_FALSE(files::replace_whole(folder.filePath(u"lista.szs"_s), "new"));

    EXPECT_FALSE(QFile::exists(folder.filePath(old)));
    EXPECT_TRUE(QFile::exists(folder.filePath(young)));
    EXPECT_TRUE(QFile::exists(folder.filePath(of_another)));
}

TEST(FileWithALongPath, is_replaced) {
    const QTemporaryDir folder;
    const QString deep = folder.path() + (u'/' + QString(60, u'x')).repeated(5);
    ASSERT_TRUE(QDir().mkpath(deep));
    const QString path = deep + u"/lista.szs"_s;

    EXPECT_FALSE(files::replace_whole(path, "old"));
    EXPECT_FALSE(files::replace_whole(path, "new"));

    EXPECT_EQ(std::get<QByteArray>(files::read_whole(path)), "new");
}

TEST(Device, is_not_read) {
    EXPECT_TRUE(std::holds_alternative<Failure>(files::read_whole(u"NUL"_s)));
}

}  // namespace
