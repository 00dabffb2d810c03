#include "platform/files.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "platform/unfinished_files.h"
#include "support/files_for_tests.h"
#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

class Files : public testing::Test {
  protected:
    [[nodiscard]] QString in_folder(const QString &name) const { return folder_.filePath(name); }

    QTemporaryDir folder_;
};

TEST_F(Files, reads_what_was_written) {
    const QString path = in_folder(u"szavak ő.szs"_s);
    const QByteArray bytes("a\0b\r\n", 5);

    EXPECT_FALSE(files::replace_whole(path, bytes));

    EXPECT_EQ(std::get<QByteArray>(files::read_whole(path)), bytes);
}

TEST_F(Files, replaces_a_longer_and_a_shorter_file_and_leaves_nothing_beside_it) {
    const QString path = in_folder(u"szavak ő.szs"_s);
    for (const QByteArray &bytes :
         {QByteArray(100000, 'x'), QByteArray("short"), QByteArray(), QByteArray(70000, 'y')}) {
        EXPECT_FALSE(files::replace_whole(path, bytes));

        EXPECT_EQ(read_file(path), bytes);
    }
    EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden), QStringList{u"szavak ő.szs"_s});
}

TEST_F(Files, have_names_as_long_as_the_system_allows_while_they_wait_to_take_anothers_place) {
    for (const qsizetype length : {1, 100, 255}) {
        const QString name(length, u'ő');
        const QString waiting = unfinished_files::new_name_for(name);

        EXPECT_EQ(waiting.size(), 38);
        EXPECT_TRUE(unfinished_files::is_name_for(name, waiting));
        EXPECT_NE(waiting, unfinished_files::new_name_for(name));
        for (const QString &other : {name, name + u'x', u'x' + waiting, waiting + u'x', waiting.chopped(1), QString()})
            EXPECT_FALSE(unfinished_files::is_name_for(name, other)) << other.toStdString();
        EXPECT_FALSE(unfinished_files::is_name_for(name + u'x', waiting));
    }
}

TEST_F(Files, says_why_a_missing_file_cannot_be_read) {
    const FileContent content = files::read_whole(in_folder(u"nincs.szs"_s));

    EXPECT_TRUE(std::get<Failure>(content).sentence.endsWith(u"nincs.szs” fájl nem olvasható: a fájl nem létezik."_s));
}

TEST_F(Files, says_why_a_folder_cannot_be_read) {
    const FileContent content = files::read_whole(folder_.path());

    EXPECT_TRUE(std::get<Failure>(content).sentence.endsWith(u"ez egy mappa."_s));
}

TEST_F(Files, says_why_a_file_cannot_be_written_into_a_missing_folder) {
    const auto failure = files::replace_whole(in_folder(u"nincs/lista.szs"_s), "a:b\r\n");

    ASSERT_TRUE(failure);
    EXPECT_TRUE(failure->sentence.endsWith(u"fájl nem írható: a mappa nem létezik."_s));
}

TEST_F(Files, takes_only_a_file_for_an_existing_file) {
    write_file(in_folder(u"van.szs"_s), "");

    EXPECT_TRUE(files::exists(in_folder(u"van.szs"_s)));
    EXPECT_FALSE(files::exists(in_folder(u"nincs.szs"_s)));
    EXPECT_FALSE(files::exists(folder_.path()));
}

TEST_F(Files, deletes_a_file_and_no_other) {
    const QString path = in_folder(u"két hang ő.wav"_s);
    write_file(path, "RIFF");
    write_file(in_folder(u"más.wav"_s), "RIFF");

    EXPECT_FALSE(files::remove(path));

    EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files), QStringList{u"más.wav"_s});
}

TEST_F(Files, takes_a_file_that_has_gone_already_for_deleted) {
    EXPECT_FALSE(files::remove(in_folder(u"nincs.wav"_s)));
    EXPECT_FALSE(files::remove(in_folder(u"nincs/hang.wav"_s)));
}

TEST_F(Files, says_so_when_a_folder_stands_in_the_place_of_a_file_to_be_deleted) {
    QDir(folder_.path()).mkdir(u"hang.wav"_s);
    const QString path = in_folder(u"hang.wav"_s);

    const auto failure = files::remove(path);

    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->sentence, u"A(z) „%1” fájl nem törölhető: ez egy mappa."_s.arg(QDir::toNativeSeparators(path)));
    EXPECT_TRUE(QFileInfo(path).isDir());
}

TEST_F(Files, makes_a_folder_and_those_that_it_lies_in) {
    EXPECT_FALSE(files::make_folder(folder_.filePath(u"a/b/c"_s)));
    EXPECT_FALSE(files::make_folder(folder_.filePath(u"a/b/c"_s)));

    EXPECT_TRUE(QFileInfo(folder_.filePath(u"a/b/c"_s)).isDir());
}

TEST_F(Files, tells_that_a_file_stands_where_a_folder_should_be_made) {
    write_file(folder_.filePath(u"a"_s), "");

    const auto failure = files::make_folder(folder_.filePath(u"a/b"_s));

    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->sentence, u"A(z) „%1” mappa nem hozható létre: a helyén egy fájl van."_s.arg(
                                     QDir::toNativeSeparators(folder_.filePath(u"a/b"_s))));
}

}  // namespace
