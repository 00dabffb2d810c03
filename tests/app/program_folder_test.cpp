#include "app/program_folder.h"

#include <gtest/gtest.h>

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include "support/files_for_tests.h"
#include "support/printing.h"

namespace {

class ProgramFolder : public testing::Test {
  protected:
    ProgramFolder() {
        for (const char *name : {"bin", "staged", "share", "documents", "other"})
            QDir(root_.path()).mkdir(QString::fromLatin1(name));
    }

    [[nodiscard]] QString place(const char *name) const { return root_.filePath(QString::fromUtf8(name)); }

    /// A program started from `executable`, which was built in the folder "bin".
    [[nodiscard]] ProgramFolderPlaces started_from(const char *executable) const {
        return {QString(), place(executable), place("bin"), place("staged"), place("share"), place("documents")};
    }

    QTemporaryDir root_;
};

TEST_F(ProgramFolder, is_what_the_environment_names_before_all_else) {
    write_file(place("other/am.txt"), "x");
    ProgramFolderPlaces places = started_from("other");
    places.environment = place("staged/");

    EXPECT_EQ(find_program_folder(places), place("staged"));
}

TEST_F(ProgramFolder, is_the_folder_of_the_executable_when_a_dictionary_lies_there) {
    write_file(place("bin/ma.txt"), "x");

    EXPECT_EQ(find_program_folder(started_from("bin")), place("bin"));
}

TEST_F(ProgramFolder, is_the_staged_one_for_a_program_in_its_build_folder) {
    EXPECT_EQ(find_program_folder(started_from("bin")), place("staged"));
}

TEST_F(ProgramFolder, is_made_in_the_documents_and_linked_to_the_installed_dictionaries) {
    write_file(place("share/am.txt"), "dictionary");

    const QString folder = find_program_folder(started_from("other"));

    EXPECT_EQ(folder, place("documents/Zimbora"));
    EXPECT_EQ(read_file(folder + QStringLiteral("/am.txt")), "dictionary");
    EXPECT_TRUE(QFileInfo(folder + QStringLiteral("/am.txt")).isSymLink());
    EXPECT_FALSE(QFileInfo::exists(folder + QStringLiteral("/ma.txt")));
}

TEST_F(ProgramFolder, is_made_with_a_copy_of_the_help_beside_it) {
    QDir(root_.path()).mkpath(QStringLiteral("share/help"));
    write_file(place("share/help/Kavaro súgó.mht"), "help");

    const QString folder = find_program_folder(started_from("other"));

    const QString copy = folder + QStringLiteral("kavaro/help/Kavaro súgó.mht");
    EXPECT_EQ(read_file(copy), "help");
    EXPECT_FALSE(QFileInfo(copy).isSymLink());
}

TEST_F(ProgramFolder, copies_the_help_again_after_an_update_and_only_then) {
    QDir(root_.path()).mkpath(QStringLiteral("share/help"));
    const QString installed = place("share/help/Kavaro súgó.mht");
    write_file(installed, "old");
    const QString copy = find_program_folder(started_from("other")) + QStringLiteral("kavaro/help/Kavaro súgó.mht");

    const QDateTime copied = QFileInfo(copy).lastModified();
    static_cast<void>(find_program_folder(started_from("other")));
    EXPECT_EQ(QFileInfo(copy).lastModified(), copied);

    write_file(installed, "new");
    static_cast<void>(find_program_folder(started_from("other")));
    EXPECT_EQ(read_file(copy), "new");
}

TEST_F(ProgramFolder, mends_a_link_whose_dictionary_has_moved) {
    QDir(root_.path()).mkpath(QStringLiteral("documents/Zimbora"));
    QFile::link(place("gone/am.txt"), place("documents/Zimbora/am.txt"));
    write_file(place("share/am.txt"), "dictionary");

    const QString folder = find_program_folder(started_from("other"));

    EXPECT_EQ(read_file(folder + QStringLiteral("/am.txt")), "dictionary");
}

TEST_F(ProgramFolder, is_missing_only_until_it_is_made_in_the_documents) {
    const ProgramFolderPlaces places = started_from("other");
    EXPECT_TRUE(program_folder_is_missing(places));

    static_cast<void>(find_program_folder(places));

    EXPECT_FALSE(program_folder_is_missing(places));
}

TEST_F(ProgramFolder, is_never_missing_where_another_one_than_that_in_the_documents_applies) {
    ProgramFolderPlaces named = started_from("other");
    named.environment = place("not made yet");
    EXPECT_FALSE(program_folder_is_missing(named));
    EXPECT_FALSE(program_folder_is_missing(started_from("bin")));

    write_file(place("other/am.txt"), "x");
    EXPECT_FALSE(program_folder_is_missing(started_from("other")));
}

TEST_F(ProgramFolder, is_made_by_nobody_who_only_asks_whether_it_is_missing) {
    static_cast<void>(program_folder_is_missing(started_from("other")));

    EXPECT_FALSE(QFileInfo::exists(place("documents/Zimbora")));
}

}  // namespace
