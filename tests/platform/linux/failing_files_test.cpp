#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QTemporaryDir>
#include <csignal>

#include "platform/files.h"
#include "support/files_for_tests.h"
#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

constexpr rlim_t small_file = 4096;

/// From here on the process can write no file larger than small_file, as on a full disk.
void limit_file_size() {
    const rlimit limit{small_file, RLIM_INFINITY};
    setrlimit(RLIMIT_FSIZE, &limit);
}

/// Ends the process: with 0 when an ordinary user is told that the right to write `path` is missing. Root has every
/// right and gives them up here.
[[noreturn]] void replace_without_the_right(const QString &path) {
    constexpr uid_t nobody = 65534;
    if (getuid() == 0 && setuid(nobody) != 0)
        std::_Exit(2);
    const auto failure = files::replace_whole(path, "new:\xfaj\r\n");
    const bool told = failure && failure->sentence.endsWith(u"fájl nem írható: nincs jogosultság az írásához."_s);
    std::_Exit(told ? 0 : 1);
}

/// The same for the right to delete it.
[[noreturn]] void remove_without_the_right(const QString &path) {
    constexpr uid_t nobody = 65534;
    if (getuid() == 0 && setuid(nobody) != 0)
        std::_Exit(2);
    const auto failure = files::remove(path);
    const bool told = failure && failure->sentence.endsWith(u"fájl nem törölhető: nincs jogosultság a törléséhez."_s);
    std::_Exit(told ? 0 : 1);
}

/// The same for the right to read the folder in which it lies.
[[noreturn]] void ask_why_not_readable(const QString &path) {
    constexpr uid_t nobody = 65534;
    if (getuid() == 0 && setuid(nobody) != 0)
        std::_Exit(2);
    const QString folder = QFileInfo(path).path();
    const QString reason = files::reason_not_readable(path);
    std::_Exit(reason == u"nincs jogosultság a(z) „%1” mappa olvasásához."_s.arg(folder) ? 0 : 1);
}

class FailingFiles : public testing::Test {
  protected:
    [[nodiscard]] QString in_folder(const QString &name) const { return folder_.filePath(name); }

    QTemporaryDir folder_;
};

TEST_F(FailingFiles, says_so_when_reading_fails_half_way) {
    // The memory of a process opens, but its first page cannot be read.
    const FileContent content = files::read_whole(u"/proc/self/mem"_s);

    EXPECT_TRUE(std::get<Failure>(content).sentence.endsWith(u"olvasási hiba történt."_s));
}

TEST_F(FailingFiles, says_so_when_a_folder_takes_no_files) {
    // Nobody, not even root, can make a file there.
    const auto failure = files::replace_whole(u"/proc/lista.szs"_s, "a:b\r\n");

    ASSERT_TRUE(failure);
    EXPECT_TRUE(failure->sentence.startsWith(u"A(z) „/proc/lista.szs” fájl nem írható: "_s));
}

TEST_F(FailingFiles, says_that_the_right_to_write_is_missing_for_a_read_only_file_and_in_a_read_only_folder) {
    const QString path = in_folder(u"lista.szs"_s);
    write_file(path, "old:r\xe9gi\r\n");
    QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadOther);
    QFile::setPermissions(folder_.path(), QFile::Permissions(0x7777));
    EXPECT_EXIT(replace_without_the_right(path), testing::ExitedWithCode(0), "");

    QFile::setPermissions(folder_.path(), QFile::Permissions(0x5555));
    EXPECT_EXIT(replace_without_the_right(in_folder(u"uj.szs"_s)), testing::ExitedWithCode(0), "");

    QFile::setPermissions(folder_.path(), QFile::Permissions(0x7777));
    EXPECT_EQ(read_file(path), "old:r\xe9gi\r\n");
}

TEST_F(FailingFiles, leaves_the_old_file_whole_when_the_disk_is_full) {
    const QString path = in_folder(u"lista.szs"_s);
    write_file(path, "old:régi\r\n");
    // A small file fails only when its one buffer is written out, a large one earlier.
    for (const qsizetype size : {10000, 1 << 20}) {
        EXPECT_EXIT(
            {
                std::signal(SIGXFSZ, SIG_IGN);
                limit_file_size();
                const auto failure = files::replace_whole(path, QByteArray(size, 'x'));
                std::exit(failure ? 0 : 1);
            },
            testing::ExitedWithCode(0), "");

        EXPECT_EQ(read_file(path), "old:régi\r\n");
        EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files), QStringList{u"lista.szs"_s});
    }
}

TEST_F(FailingFiles, leaves_the_old_file_whole_when_the_process_is_killed_in_the_middle) {
    const QString path = in_folder(u"lista.szs"_s);
    write_file(path, "old:régi\r\n");
    EXPECT_EXIT(
        {
            limit_file_size();
            static_cast<void>(files::replace_whole(path, QByteArray(1 << 20, 'x')));
            std::exit(0);
        },
        testing::KilledBySignal(SIGXFSZ), "");

    EXPECT_EQ(read_file(path), "old:régi\r\n");
}

TEST_F(FailingFiles, waits_for_no_pipe_and_no_device_and_says_what_they_are) {
    ASSERT_EQ(mkfifo(QFile::encodeName(in_folder(u"cső.szs"_s)).constData(), 0600), 0);
    ASSERT_TRUE(QFile::link(u"/dev/zero"_s, in_folder(u"eszköz.szs"_s)));
    for (const QString &name : {u"cső.szs"_s, u"eszköz.szs"_s}) {
        const QString path = in_folder(name);
        const QString reason = u"nem közönséges fájl, hanem eszköz vagy csővezeték."_s;

        EXPECT_EQ(std::get<Failure>(files::read_whole(path)).sentence,
                  u"A(z) „%1” fájl nem olvasható: %2"_s.arg(path, reason));
        EXPECT_EQ(files::reason_not_readable(path), reason);
        const auto failure = files::replace_whole(path, "x");
        ASSERT_TRUE(failure);
        EXPECT_TRUE(failure->sentence.endsWith(u"fájl nem írható: "_s + reason)) << failure->sentence.toStdString();
        EXPECT_TRUE(files::is_taken(path));
        EXPECT_FALSE(files::exists(path));
    }
}

TEST_F(FailingFiles, says_which_folder_may_not_be_read) {
    const QString path = in_folder(u"am.txt"_s);
    write_file(path, "x");
    QFile::setPermissions(folder_.path(), QFile::Permissions(0));
    EXPECT_EXIT(ask_why_not_readable(path), testing::ExitedWithCode(0), "");
    QFile::setPermissions(folder_.path(), QFile::Permissions(0x7700));
}

TEST_F(FailingFiles, deletes_a_read_only_file) {
    const QString path = in_folder(u"hang.wav"_s);
    write_file(path, "RIFF");
    QFile::setPermissions(path, QFile::ReadOwner);

    EXPECT_FALSE(files::remove(path));

    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(FailingFiles, deletes_a_link_and_not_what_it_leads_to) {
    write_file(in_folder(u"hang.wav"_s), "RIFF");
    for (const char *target : {"hang.wav", "nincs.wav"}) {
        const QString link = in_folder(u"hanghoz.wav"_s);
        ASSERT_TRUE(QFile::link(in_folder(QString::fromLatin1(target)), link));

        EXPECT_FALSE(files::remove(link));

        EXPECT_FALSE(QFileInfo(link).isSymLink()) << target;
    }
    EXPECT_TRUE(QFile::exists(in_folder(u"hang.wav"_s)));
}

TEST_F(FailingFiles, says_that_the_right_to_delete_is_missing_in_a_read_only_folder) {
    const QString path = in_folder(u"hang.wav"_s);
    write_file(path, "RIFF");
    QFile::setPermissions(folder_.path(), QFile::Permissions(0x5555));

    EXPECT_EXIT(remove_without_the_right(path), testing::ExitedWithCode(0), "");

    QFile::setPermissions(folder_.path(), QFile::Permissions(0x7777));
    EXPECT_TRUE(QFile::exists(path));
}

}  // namespace
