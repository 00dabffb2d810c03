#include <QFile>

#include "support/program_folder_fixture.h"

namespace {

TEST_F(ProgramFolder, is_made_in_the_documents_and_linked_to_the_installed_dictionaries) {
    write_file(place("share/am.txt"), "dictionary");

    const QString folder = find_program_folder(started_from("other"));

    EXPECT_EQ(folder, place("documents/Zimbora"));
    EXPECT_EQ(read_file(folder + QStringLiteral("/am.txt")), "dictionary");
    EXPECT_TRUE(QFileInfo(folder + QStringLiteral("/am.txt")).isSymLink());
    EXPECT_FALSE(QFileInfo::exists(folder + QStringLiteral("/ma.txt")));
}

TEST_F(ProgramFolder, mends_a_link_whose_dictionary_has_moved) {
    QDir(root_.path()).mkpath(QStringLiteral("documents/Zimbora"));
    QFile::link(place("gone/am.txt"), place("documents/Zimbora/am.txt"));
    write_file(place("share/am.txt"), "dictionary");

    const QString folder = find_program_folder(started_from("other"));

    EXPECT_EQ(read_file(folder + QStringLiteral("/am.txt")), "dictionary");
}

}  // namespace
