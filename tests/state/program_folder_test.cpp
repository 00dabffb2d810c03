#include <QDateTime>

#include "support/odd_files.h"
#include "support/program_folder_fixture.h"

using namespace Qt::StringLiterals;

namespace {

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

TEST_F(ProgramFolder, is_the_folder_of_the_executable_where_an_installation_is_one_folder) {
    ProgramFolderPlaces places = started_from("other");
    places.installed_dictionaries.clear();

    EXPECT_EQ(find_program_folder(places), place("other"));
    EXPECT_FALSE(program_folder_is_missing(places));
    EXPECT_FALSE(QDir(place("documents/Zimbora")).exists());
}

TEST_F(ProgramFolder, is_made_with_a_copy_of_the_help_beside_it) {
    QDir(root_.path()).mkpath(u"share/help"_s);
    write_file(place("share/help/Kavaro súgó.mht"), "help");

    const QString folder = find_program_folder(started_from("other"));

    const QString copy = folder + u"kavaro/help/Kavaro súgó.mht"_s;
    EXPECT_EQ(read_file(copy), "help");
    EXPECT_FALSE(QFileInfo(copy).isSymLink());
}

TEST_F(ProgramFolder, copies_the_help_again_after_an_update_and_only_then) {
    QDir(root_.path()).mkpath(u"share/help"_s);
    const QString installed = place("share/help/Kavaro súgó.mht");
    write_file(installed, "old");
    const QString copy = find_program_folder(started_from("other")) + u"kavaro/help/Kavaro súgó.mht"_s;

    const QDateTime copied = QFileInfo(copy).lastModified();
    static_cast<void>(find_program_folder(started_from("other")));
    EXPECT_EQ(QFileInfo(copy).lastModified(), copied);

    write_file(installed, "new");
    static_cast<void>(find_program_folder(started_from("other")));
    EXPECT_EQ(read_file(copy), "new");
}

TEST_F(ProgramFolder, is_made_with_copies_of_the_sounds_the_music_and_the_initial_settings) {
    install_sounds_and_music();

    const QString folder = find_program_folder(started_from("other"));

    EXPECT_EQ(read_file(folder + u"/hangok/csengő.wav"_s), "bell");
    EXPECT_EQ(read_file(folder + u"/hangok/mély duda.wav"_s), "horn");
    EXPECT_EQ(read_file(folder + u"/zenemid/Érik a szőlő.mid"_s), "song");
    EXPECT_EQ(read_file(folder + u"/kavaro/zenebeáll.ini"_s), " 0\r\n");
    EXPECT_FALSE(QFileInfo(folder + u"/hangok/csengő.wav"_s).isSymLink());
}

TEST_F(ProgramFolder, has_copies_in_folders_that_are_as_open_as_itself_and_nothing_else_beside_them) {
    install_sounds_and_music();

    const QString folder = find_program_folder(started_from("other"));

    EXPECT_EQ(names_in("documents/Zimbora"), "hangok, kavaro, zenemid");
    EXPECT_EQ(QFile::permissions(folder + u"/hangok"_s), QFile::permissions(folder));
}

TEST_F(ProgramFolder, is_made_with_the_silence_where_its_name_directly_follows_the_folders) {
    install_sounds_and_music();

    const QString folder = find_program_folder(started_from("other"));

    EXPECT_EQ(read_file(folder + u"null.wav"_s), "silence");
    EXPECT_EQ(read_file(place("documents/Zimboranull.wav")), "silence");
}

TEST_F(ProgramFolder, gets_the_silence_back_when_it_is_gone) {
    install_sounds_and_music();
    const QString silence = find_program_folder(started_from("other")) + u"null.wav"_s;
    QFile::remove(silence);

    static_cast<void>(find_program_folder(started_from("other")));

    EXPECT_EQ(read_file(silence), "silence");
}

TEST_F(ProgramFolder, does_not_get_a_sound_back_that_the_user_has_deleted) {
    install_sounds_and_music();
    QFile::remove(find_program_folder(started_from("other")) + u"/hangok/csengő.wav"_s);

    static_cast<void>(find_program_folder(started_from("other")));

    EXPECT_EQ(names_in("documents/Zimbora/hangok"), "mély duda.wav");
}

TEST_F(ProgramFolder, does_not_get_the_sounds_back_when_the_user_has_deleted_them_all) {
    install_sounds_and_music();
    const QDir sounds(find_program_folder(started_from("other")) + u"/hangok"_s);
    for (const QString &name : sounds.entryList(QDir::Files))
        QFile::remove(sounds.filePath(name));

    static_cast<void>(find_program_folder(started_from("other")));

    EXPECT_EQ(names_in("documents/Zimbora/hangok"), "");
}

TEST_F(ProgramFolder, keeps_the_users_settings_and_gets_only_the_folders_that_it_lacks) {
    install_sounds_and_music();
    QDir(root_.path()).mkpath(u"documents/Zimbora/kavaro"_s);
    write_file(place("documents/Zimbora/kavaro/zenebeáll.ini"), " 1\r\n");

    static_cast<void>(find_program_folder(started_from("other")));

    EXPECT_EQ(read_file(place("documents/Zimbora/kavaro/zenebeáll.ini")), " 1\r\n");
    EXPECT_EQ(read_file(place("documents/Zimbora/zenemid/Érik a szőlő.mid")), "song");
}

TEST_F(ProgramFolder, has_no_sounds_where_none_are_installed_and_gets_them_when_they_are) {
    make_installed("am.txt", "dictionary");
    QDir(root_.path()).mkpath(u"share/hangok"_s);
    static_cast<void>(find_program_folder(started_from("other")));
    EXPECT_EQ(names_in("documents/Zimbora"), "am.txt");

    install_sounds_and_music();
    static_cast<void>(find_program_folder(started_from("other")));

    EXPECT_EQ(names_in("documents/Zimbora/hangok"), "csengő.wav, mély duda.wav");
}

TEST_F(ProgramFolder, has_no_sounds_rather_than_half_of_them) {
    install_sounds_and_music();
    {
        const UnreadableFile unreadable(place("share/hangok/unreadable.wav"));
        ASSERT_TRUE(QFileInfo(place("share/hangok/unreadable.wav")).isFile());

        static_cast<void>(find_program_folder(started_from("other")));

        EXPECT_EQ(names_in("documents/Zimbora"), "kavaro, zenemid");
    }

    static_cast<void>(find_program_folder(started_from("other")));

    EXPECT_EQ(names_in("documents/Zimbora/hangok"), "csengő.wav, mély duda.wav");
}

TEST_F(ProgramFolder, is_given_the_word_lists) {
    make_installed("szószedetek/A2 Család.szs", "mother:anya\r\n");

    const QString folder = find_program_folder(started_from("other"));

    EXPECT_EQ(read_file(folder + u"/szószedetek/A2 Család.szs"_s), "mother:anya\r\n");
}

TEST_F(ProgramFolder, keeps_what_the_user_made_of_a_word_list_after_an_update) {
    make_installed("szószedetek/A2 Család.szs", "mother:anya\r\n");
    const QString list = find_program_folder(started_from("other")) + u"/szószedetek/A2 Család.szs"_s;
    write_file(list, "mother:édesanya\r\n");
    make_installed("szószedetek/A2 Család.szs", "mother:anya\r\nfather:apa\r\n");

    static_cast<void>(find_program_folder(started_from("other")));

    EXPECT_EQ(read_file(list), "mother:édesanya\r\n");
}

TEST_F(ProgramFolder, never_gets_the_word_lists_back_that_the_user_deleted_with_their_folder) {
    make_installed("szószedetek/A2 Család.szs", "mother:anya\r\n");
    QDir(find_program_folder(started_from("other")) + u"/szószedetek"_s).removeRecursively();

    const QString folder = find_program_folder(started_from("other"));

    EXPECT_FALSE(QFileInfo::exists(folder + u"/szószedetek"_s));
}

TEST_F(ProgramFolder, of_a_former_version_is_given_the_word_lists) {
    const QString folder = find_program_folder(started_from("other"));
    make_installed("szószedetek/A2 Család.szs", "mother:anya\r\n");

    static_cast<void>(find_program_folder(started_from("other")));

    EXPECT_TRUE(QFileInfo::exists(folder + u"/szószedetek/A2 Család.szs"_s));
}

TEST_F(ProgramFolder, is_filled_anew_when_the_first_copy_was_interrupted) {
    install_sounds_and_music();
    QDir(root_.path()).mkpath(u"documents/Zimbora/.hangok-a1B2c3"_s);
    const QString half = place("documents/Zimbora/.hangok-a1B2c3");
    write_file(half + u"/csengő.wav"_s, "bell");
    set_folder_time(half, QDateTime::currentDateTime().addSecs(-2 * 3600));

    static_cast<void>(find_program_folder(started_from("other")));

    EXPECT_EQ(names_in("documents/Zimbora"), "hangok, kavaro, zenemid");
    EXPECT_EQ(names_in("documents/Zimbora/hangok"), "csengő.wav, mély duda.wav");
}

TEST_F(ProgramFolder, leaves_the_copy_alone_that_another_start_is_making) {
    install_sounds_and_music();
    QDir(root_.path()).mkpath(u"documents/Zimbora/.hangok-a1B2c3"_s);

    static_cast<void>(find_program_folder(started_from("other")));

    EXPECT_TRUE(QFileInfo::exists(place("documents/Zimbora/.hangok-a1B2c3")));
}

TEST_F(ProgramFolder, is_returned_without_sounds_where_it_cannot_be_made) {
    install_sounds_and_music();
    // A file in the place of the folder keeps even an administrator from making it.
    write_file(place("documents/Zimbora"), "a file");

    EXPECT_EQ(find_program_folder(started_from("other")), place("documents/Zimbora"));
    EXPECT_EQ(read_file(place("documents/Zimbora")), "a file");
}

TEST_F(ProgramFolder, that_is_missing_or_a_file_is_told_as_that) {
    write_file(place("file"), "");
    const auto sentence = [](const QString &folder) {
        const auto failure = program_folder_failure(folder);
        return failure ? failure->sentence : QString();
    };

    EXPECT_EQ(sentence(place("bin")), QString());
    EXPECT_EQ(sentence(place("gone")), u"A program mappája, a(z) „%1” nem olvasható: a mappa nem létezik."_s.arg(
                                           QDir::toNativeSeparators(place("gone"))));
    EXPECT_EQ(sentence(place("file")), u"A program mappája, a(z) „%1” nem olvasható: a helyén egy fájl van."_s.arg(
                                           QDir::toNativeSeparators(place("file"))));
}

TEST_F(ProgramFolder, leaves_a_file_alone_that_stands_where_its_sounds_would) {
    install_sounds_and_music();
    QDir(root_.path()).mkpath(u"documents/Zimbora"_s);
    write_file(place("documents/Zimbora/hangok"), "a file");

    static_cast<void>(find_program_folder(started_from("other")));

    EXPECT_EQ(read_file(place("documents/Zimbora/hangok")), "a file");
    EXPECT_EQ(names_in("documents/Zimbora"), "hangok, kavaro, zenemid");
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
