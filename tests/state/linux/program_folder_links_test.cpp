#include <QFile>

#include "support/program_folder_fixture.h"

using namespace Qt::StringLiterals;

namespace {

TEST_F(ProgramFolder, is_made_in_the_documents_and_linked_to_the_installed_dictionaries) {
    write_file(place("share/am.txt"), "dictionary");

    const QString folder = find_program_folder(started_from("other"));

    EXPECT_EQ(folder, place("documents/Zimbora"));
    EXPECT_EQ(read_file(folder + u"/am.txt"_s), "dictionary");
    EXPECT_TRUE(QFileInfo(folder + u"/am.txt"_s).isSymLink());
    EXPECT_FALSE(QFileInfo::exists(folder + u"/ma.txt"_s));
}

TEST_F(ProgramFolder, mends_a_link_whose_dictionary_has_moved) {
    QDir(root_.path()).mkpath(u"documents/Zimbora"_s);
    QFile::link(place("gone/am.txt"), place("documents/Zimbora/am.txt"));
    write_file(place("share/am.txt"), "dictionary");

    const QString folder = find_program_folder(started_from("other"));

    EXPECT_EQ(read_file(folder + u"/am.txt"_s), "dictionary");
}

}  // namespace
