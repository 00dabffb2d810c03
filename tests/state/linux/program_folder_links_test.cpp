#include <unistd.h>

#include <QFile>
#include <cstdlib>

#include "support/program_folder_fixture.h"

using namespace Qt::StringLiterals;

namespace {

/// Ends the process: with 0 when an ordinary user is told that the folder is closed. Root gives up his rights.
[[noreturn]] void ask_for_failure(const QString &folder) {
    constexpr uid_t nobody = 65534;
    if (getuid() == 0 && setuid(nobody) != 0)
        std::_Exit(2);
    const auto failure = program_folder_failure(folder);
    const QString wanted = u"A program mappája, a(z) „%1” nem olvasható: nincs jogosultság az olvasásához."_s;
    std::_Exit(failure && failure->sentence == wanted.arg(folder) ? 0 : 1);
}

TEST_F(ProgramFolder, that_is_closed_to_the_user_is_told_as_that) {
    QFile::setPermissions(root_.path(), QFile::Permissions(0x7755));
    QFile::setPermissions(place("bin"), QFile::Permissions(0));

    EXPECT_EXIT(ask_for_failure(place("bin")), testing::ExitedWithCode(0), "");

    QFile::setPermissions(place("bin"), QFile::Permissions(0x7700));
}

TEST_F(ProgramFolder, is_made_in_the_documents_and_linked_to_the_installed_dictionaries) {
    write_file(place("share/am.txt"), "dictionary");

    const QString folder = find_program_folder(started_from("other"));

    EXPECT_EQ(folder, place("documents/Zimbora"));
    EXPECT_EQ(read_file(folder + u"/am.txt"_s), "dictionary");
    EXPECT_TRUE(QFileInfo(folder + u"/am.txt"_s).isSymLink());
    EXPECT_FALSE(QFileInfo::exists(folder + u"/ma.txt"_s));
}

TEST_F(ProgramFolder, is_linked_to_what_was_made_of_the_dictionaries) {
    write_file(place("share/am.txt"), "dictionary");
    for (const char *name : {"share/szavak.idx", "share/am.gyk", "share/ma.gyk"})
        write_file(place(name), name);

    const QString folder = find_program_folder(started_from("other"));

    for (const QString &name : {u"szavak.idx"_s, u"am.gyk"_s, u"ma.gyk"_s}) {
        EXPECT_EQ(read_file(folder + u'/' + name), u"share/"_s.append(name).toUtf8());
        EXPECT_TRUE(QFileInfo(folder + u'/' + name).isSymLink());
    }
}

TEST_F(ProgramFolder, is_linked_to_what_explains_forms) {
    QDir(root_.path()).mkpath(u"share/alakok"_s);
    write_file(place("share/alakok/angol.txt"), "v went go");

    const QString folder = find_program_folder(started_from("other"));

    EXPECT_EQ(read_file(folder + u"/alakok/angol.txt"_s), "v went go");
    EXPECT_TRUE(QFileInfo(folder + u"/alakok"_s).isSymLink());
}

TEST_F(ProgramFolder, mends_a_link_whose_dictionary_has_moved) {
    QDir(root_.path()).mkpath(u"documents/Zimbora"_s);
    QFile::link(place("gone/am.txt"), place("documents/Zimbora/am.txt"));
    write_file(place("share/am.txt"), "dictionary");

    const QString folder = find_program_folder(started_from("other"));

    EXPECT_EQ(read_file(folder + u"/am.txt"_s), "dictionary");
}

}  // namespace
