// What is left when a save is killed on the way, and what the next one does with it; and files in folders that take
// none.

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <cerrno>
#include <csignal>

#include "platform/files.h"
#include "platform/unfinished_files.h"
#include "support/files_for_tests.h"
#include "support/linux/failing_calls_fixture.h"
#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

constexpr uid_t nobody = 65534;

/// What goes beyond ends the process, unless it handles the signal.
void limit_file_size(rlim_t size) {
    const rlimit limit{size, RLIM_INFINITY};
    setrlimit(RLIMIT_FSIZE, &limit);
}

/// Becomes an ordinary user: root may write into every folder.
void give_up_rights() {
    if (getuid() == 0 && (setgid(nobody) != 0 || setuid(nobody) != 0))
        std::_Exit(99);
}

class UnfinishedFiles : public WithFailingCalls {
  protected:
    [[nodiscard]] QString in_folder(const QString &name) const { return folder_.filePath(name); }
    [[nodiscard]] QStringList names() const {
        return QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden | QDir::System);
    }

    /// Where the file system makes no files without a name, a process is killed while it replaces the file.
    void kill_while_saving(const QString &path, const char *failing = "nameless") {
        EXPECT_EXIT(replace_until_killed(path, failing), testing::KilledBySignal(SIGXFSZ), "");
    }

    [[noreturn]] void replace_until_killed(const QString &path, const char *failing) {
        *calls_ = {failing, EOPNOTSUPP};
        limit_file_size(4096);
        static_cast<void>(files::replace_whole(path, QByteArray(1 << 20, 'x')));
        std::exit(0);
    }

    QTemporaryDir folder_;
};

TEST_F(UnfinishedFiles, of_killed_saves_are_removed_by_the_next_save_of_that_file) {
    const QString path = in_folder(u"lista ő.szs"_s);
    write_file(path, "old");
    for (int i = 0; i < 2; ++i) {
        kill_while_saving(path);
        ASSERT_EQ(names().size(), 2);
    }

    EXPECT_FALSE(files::replace_whole(path, "new"));

    EXPECT_EQ(names(), QStringList{u"lista ő.szs"_s});
    EXPECT_EQ(read_file(path), "new");
}

TEST_F(UnfinishedFiles, of_other_files_and_what_only_looks_like_them_stay) {
    write_file(in_folder(u"más.szs"_s), "old");
    kill_while_saving(in_folder(u"más.szs"_s));
    const QString like = unfinished_files::new_name_for(u"lista.szs"_s);
    write_file(in_folder(like + u".szs"_s), "x");
    write_file(in_folder(u'x' + like), "x");
    QDir(folder_.path()).mkdir(unfinished_files::new_name_for(u"lista.szs"_s));
    const QStringList before = names();

    EXPECT_FALSE(files::replace_whole(in_folder(u"lista.szs"_s), "new"));

    EXPECT_EQ(names().size(), before.size() + 1);
    EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot).size(), 1);
}

TEST_F(UnfinishedFiles, of_a_save_in_progress_stay) {
    const QString path = in_folder(u"lista.szs"_s);
    write_file(path, "old");
    const pid_t other = fork();
    if (other == 0) {
        // It stands still at its first byte.
        *calls_ = {"nameless", EOPNOTSUPP};
        std::signal(SIGXFSZ, [](int) {
            std::signal(SIGXFSZ, SIG_IGN);
            raise(SIGSTOP);
        });
        limit_file_size(0);
        std::_Exit(files::replace_whole(path, "other") ? 0 : 1);
    }
    int status = 0;
    EXPECT_EQ(waitpid(other, &status, WUNTRACED), other);
    EXPECT_TRUE(WIFSTOPPED(status));
    EXPECT_EQ(names().size(), 2);

    EXPECT_FALSE(files::replace_whole(path, "new"));

    EXPECT_EQ(names().size(), 2);
    kill(other, SIGCONT);
    waitpid(other, &status, 0);
    EXPECT_EQ(WEXITSTATUS(status), 0);
    EXPECT_EQ(names(), QStringList{u"lista.szs"_s});
}

TEST_F(UnfinishedFiles, are_none_where_the_file_system_makes_files_without_a_name) {
    const QString path = in_folder(u"lista.szs"_s);

    kill_while_saving(path, nullptr);

    EXPECT_EQ(names(), QStringList());
}

/// A file that may be written in a folder that takes no files, and a place for copies.
class FileInAClosedFolder : public UnfinishedFiles {
  protected:
    FileInAClosedFolder() {
        QDir(folder_.path()).mkdir(u"closed"_s);
        QDir(folder_.path()).mkdir(u"data"_s);
        write_file(path_, old_);
        QFile::setPermissions(path_, QFile::Permissions(0x6666));
        QFile::setPermissions(in_folder(u"data"_s), QFile::Permissions(0x7777));
        QFile::setPermissions(in_folder(u"closed"_s), QFile::Permissions(0x5555));
        QFile::setPermissions(folder_.path(), QFile::Permissions(0x7777));
        qputenv("XDG_DATA_HOME", QFile::encodeName(in_folder(u"data"_s)));
    }
    ~FileInAClosedFolder() override {
        QFile::setPermissions(in_folder(u"closed"_s), QFile::Permissions(0x7777));
        qunsetenv("XDG_DATA_HOME");
    }

    [[nodiscard]] QStringList copies() const {
        return QDir(in_folder(u"data/zimbora/masolatok"_s)).entryList(QDir::Files);
    }

    /// In a process of an ordinary user: replaces the file while calls fail; true when it is as expected.
    template <typename Expected>
    void replace_as_ordinary_user(const FailingCalls &calls, const Expected &as_expected) {
        EXPECT_EXIT(
            {
                give_up_rights();
                *calls_ = calls;
                const auto failure = files::replace_whole(path_, new_);
                *calls_ = {};
                const QString sentence = failure ? failure->sentence : QString();
                std::fputs(qPrintable(sentence), stderr);
                std::_Exit(as_expected(sentence) ? 0 : 1);
            },
            testing::ExitedWithCode(0), "");
    }

    const QByteArray old_ =
        "old:r\xe9gi\r\nmore:t\xf6"
        "bb\r\n";
    const QByteArray new_ = "new:\xfaj\r\n";
    const QString path_ = folder_.filePath(u"closed/lista.szs"_s);
};

TEST_F(FileInAClosedFolder, is_written_where_it_lies_and_leaves_no_copy) {
    replace_as_ordinary_user({}, [](const QString &told) { return told.isEmpty(); });

    EXPECT_EQ(read_file(path_), new_);
    EXPECT_EQ(copies(), QStringList());
}

TEST_F(FileInAClosedFolder, is_as_it_was_when_writing_it_fails_and_that_is_told) {
    // The first write is that of the copy, the second one into the file.
    replace_as_ordinary_user({"write", ENOSPC, 1, 1}, [](const QString &told) {
        return told.endsWith(u"lista.szs” fájl nem írható: nincs elég hely a lemezen."_s);
    });

    EXPECT_EQ(read_file(path_), old_);
    EXPECT_EQ(copies(), QStringList());
}

TEST_F(FileInAClosedFolder, has_a_copy_that_the_message_names_when_it_cannot_be_put_right_either) {
    replace_as_ordinary_user({"fsync", EIO, 1}, [](const QString &told) {
        return told.contains(u"A fájl megsérült; amit eddig tartalmazott, itt van meg: „"_s) &&
               told.contains(u"data/zimbora/masolatok/lista "_s);
    });

    ASSERT_EQ(copies().size(), 1);
    EXPECT_TRUE(copies().constFirst().endsWith(u".szs"_s));
    EXPECT_EQ(read_file(in_folder(u"data/zimbora/masolatok/"_s + copies().constFirst())), old_);
}

TEST_F(FileInAClosedFolder, is_not_touched_when_no_copy_can_be_made) {
    replace_as_ordinary_user({"write", EDQUOT}, [](const QString &told) {
        return told.contains(u"az eddigi tartalmáról pedig nem készült másolat"_s) && told.contains(u"(kvóta)"_s);
    });

    EXPECT_EQ(read_file(path_), old_);
}

TEST_F(FileInAClosedFolder, is_told_when_it_is_a_new_one) {
    EXPECT_EXIT(
        {
            give_up_rights();
            const auto failure = files::replace_whole(in_folder(u"closed/uj.szs"_s), new_);
            std::_Exit(failure && failure->sentence.endsWith(u"nincs jogosultság az írásához."_s) ? 0 : 1);
        },
        testing::ExitedWithCode(0), "");
}

}  // namespace
