#include "media/music_settings.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "support/files_for_tests.h"
#include "support/odd_files.h"
#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

class MusicSettings : public testing::Test {
  protected:
    MusicSettings() {
        QDir(program_).mkpath(u"kavaro"_s);
        QDir(drive_).mkpath(u"zbrmk/kavaro"_s);
    }

    QTemporaryDir folder_;
    QString program_ = folder_.filePath(u"program"_s);
    QString drive_ = folder_.filePath(u"c"_s);
    QString own_file_ = drive_ + u"/zbrmk/kavaro/zenebeáll.ini"_s;
    QString initial_file_ = program_ + u"/kavaro/zenebeáll.ini"_s;
    zenebeállítások settings_{DriveC(drive_), program_};
};

TEST_F(MusicSettings, are_on_and_without_music_when_there_is_no_file) {
    EXPECT_FALSE(settings_.betölt());

    EXPECT_TRUE(settings_.engedélyezve);
    EXPECT_EQ(settings_.lista.darab(), 0);
}

TEST_F(MusicSettings, have_their_music_in_the_folder_zenemid) {
    EXPECT_EQ(settings_.zenemappa(), program_ + u"/zenemid"_s);
}

TEST_F(MusicSettings, write_exactly_these_bytes) {
    settings_.engedélyezve = false;
    settings_.lista.feltölt({u"őszi szél.mid"_s, u"a.mid"_s});

    EXPECT_FALSE(settings_.ment());

    EXPECT_EQ(read_file(own_file_), " 0\r\n\xf5szi sz\xe9l.mid\r\na.mid\r\n");
}

TEST_F(MusicSettings, write_the_switch_alone_for_an_empty_list) {
    EXPECT_FALSE(settings_.ment());

    EXPECT_EQ(read_file(own_file_), " 1\r\n");
}

TEST_F(MusicSettings, read_what_they_wrote) {
    settings_.engedélyezve = false;
    settings_.lista.feltölt({u"b \"c\".mid"_s, u" űr .mid"_s, u"1"_s});
    EXPECT_FALSE(settings_.ment());
    zenebeállítások read(DriveC(drive_), program_);

    EXPECT_FALSE(read.betölt());

    EXPECT_FALSE(read.engedélyezve);
    EXPECT_EQ(read.lista.nevek(), settings_.lista.nevek());
}

TEST_F(MusicSettings, keep_entries_whose_file_is_missing) {
    write_file(own_file_, " 1\r\nnincs.mid\r\n");

    EXPECT_FALSE(settings_.betölt());

    EXPECT_EQ(settings_.lista.nevek(), QStringList(u"nincs.mid"_s));
}

TEST_F(MusicSettings, come_from_the_program_folder_as_long_as_there_is_no_own_file) {
    write_file(initial_file_, " 0\r\na.mid\r\n");

    EXPECT_FALSE(settings_.betölt());

    EXPECT_FALSE(settings_.engedélyezve);
    EXPECT_EQ(settings_.lista.nevek(), QStringList(u"a.mid"_s));
}

TEST_F(MusicSettings, come_from_the_own_file_when_there_are_both) {
    write_file(initial_file_, " 0\r\na.mid\r\n");
    write_file(own_file_, " 1\r\nb.mid\r\n");

    EXPECT_FALSE(settings_.betölt());

    EXPECT_TRUE(settings_.engedélyezve);
    EXPECT_EQ(settings_.lista.nevek(), QStringList(u"b.mid"_s));
}

TEST_F(MusicSettings, write_the_own_file_and_never_the_one_of_the_program_folder) {
    write_file(initial_file_, " 0\r\na.mid\r\n");
    EXPECT_FALSE(settings_.betölt());
    settings_.engedélyezve = true;

    EXPECT_FALSE(settings_.ment());

    EXPECT_EQ(read_file(own_file_), " 1\r\na.mid\r\n");
    EXPECT_EQ(read_file(initial_file_), " 0\r\na.mid\r\n");
}

TEST_F(MusicSettings, take_everything_from_the_file_again) {
    write_file(own_file_, " 0\r\na.mid\r\nb.mid\r\n");
    EXPECT_FALSE(settings_.betölt());
    settings_.engedélyezve = true;
    settings_.lista.hozzáad(u"c.mid"_s);

    EXPECT_FALSE(settings_.betölt());

    EXPECT_FALSE(settings_.engedélyezve);
    EXPECT_EQ(settings_.lista.nevek(), (QStringList{u"a.mid"_s, u"b.mid"_s}));
    EXPECT_EQ(settings_.lista.kijelölt(), -1);
}

TEST_F(MusicSettings, go_back_to_nothing_when_the_file_has_gone) {
    settings_.engedélyezve = false;
    settings_.lista.hozzáad(u"a.mid"_s);

    EXPECT_FALSE(settings_.betölt());

    EXPECT_TRUE(settings_.engedélyezve);
    EXPECT_EQ(settings_.lista.darab(), 0);
}

TEST_F(MusicSettings, leave_out_names_that_lead_into_another_folder) {
    write_file(own_file_, " 1\r\n../a.mid\r\n/b.mid\r\nc:\\c.mid\r\nd.mid\r\n");

    EXPECT_FALSE(settings_.betölt());

    EXPECT_EQ(settings_.lista.nevek(), QStringList(u"d.mid"_s));
}

TEST_F(MusicSettings, take_a_file_without_its_first_line_for_a_list_and_tell_so) {
    write_file(own_file_, "a.mid\r\nb.mid\r\n");

    const auto failure = settings_.betölt();

    ASSERT_TRUE(failure);
    EXPECT_TRUE(failure->sentence.contains(u"zenebeáll.ini” fájl első sora nem a zene kapcsolója."_s));
    EXPECT_TRUE(settings_.engedélyezve);
    EXPECT_EQ(settings_.lista.nevek(), (QStringList{u"a.mid"_s, u"b.mid"_s}));
}

TEST_F(MusicSettings, tell_of_a_file_of_zero_bytes) {
    write_file(own_file_, "");

    EXPECT_TRUE(settings_.betölt());

    EXPECT_TRUE(settings_.engedélyezve);
    EXPECT_EQ(settings_.lista.darab(), 0);
}

TEST_F(MusicSettings, tell_of_a_file_that_cannot_be_read) {
    const UnreadableFile unreadable(own_file_);

    const auto failure = settings_.betölt();

    ASSERT_TRUE(failure);
    EXPECT_TRUE(failure->sentence.contains(u"zenebeáll.ini” fájl nem olvasható: "_s));
}

TEST_F(MusicSettings, make_the_folders_for_their_file) {
    QDir(drive_).removeRecursively();

    EXPECT_FALSE(settings_.ment());

    EXPECT_EQ(read_file(own_file_), " 1\r\n");
}

TEST_F(MusicSettings, tell_why_they_could_not_be_written) {
    QDir(drive_ + u"/zbrmk/kavaro"_s).removeRecursively();
    write_file(drive_ + u"/zbrmk/kavaro"_s, "a file in the place of the folder");

    const auto failure = settings_.ment();

    ASSERT_TRUE(failure);
    EXPECT_TRUE(failure->sentence.contains(QDir::toNativeSeparators(u"/zbrmk/kavaro"_s) +
                                           u"” mappa nem hozható létre: a helyén egy fájl van."_s));
}

TEST_F(MusicSettings, leave_the_old_file_as_it_was_when_the_code_page_lacks_a_letter) {
    write_file(own_file_, " 0\r\na.mid\r\n");
    settings_.lista.feltölt({u"春.mid"_s});

    const auto failure = settings_.ment();

    ASSERT_TRUE(failure);
    EXPECT_TRUE(failure->sentence.startsWith(u"A(z) „春.mid” nevű fájl nem kerülhet a listára"_s));
    EXPECT_EQ(read_file(own_file_), " 0\r\na.mid\r\n");
}

TEST_F(MusicSettings, hold_a_list_of_5000_entries) {
    QStringList names;
    for (int i = 0; i < 5000; ++i)
        names.append(QString::number(i) + u" ősz.mid"_s);
    settings_.lista.feltölt(names);
    EXPECT_FALSE(settings_.ment());
    zenebeállítások read(DriveC(drive_), program_);

    EXPECT_FALSE(read.betölt());

    EXPECT_EQ(read.lista.nevek(), names);
}

}  // namespace
