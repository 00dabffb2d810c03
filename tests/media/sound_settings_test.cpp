#include "media/sound_settings.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "support/files_for_tests.h"
#include "support/odd_files.h"
#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

using Switches = std::array<bool, 5>;

constexpr Switches all_on{true, true, true, true, true};

class SoundSettings : public testing::Test {
  protected:
    SoundSettings() {
        QDir(program_).mkpath(u"hangok"_s);
        QDir(program_).mkpath(u"kavaro"_s);
        for (const char16_t *name : {u"taps.wav", u"gong.wav", u"két szó.wav", u"őű.wav"})
            write_file(sound(QString::fromUtf16(name)), "");
    }

    [[nodiscard]] QString sound(const QString &name) const { return program_ + u"/hangok/"_s + name; }
    [[nodiscard]] QString settings_file(const char *name) const {
        return program_ + u"/kavaro/"_s + QString::fromLatin1(name);
    }

    QTemporaryDir folder_;
    QString program_ = folder_.path();
    hangbeállítások settings_{program_};
};

TEST_F(SoundSettings, are_all_on_and_without_sounds_when_there_is_no_file) {
    EXPECT_FALSE(settings_.betölt());

    EXPECT_EQ(settings_.kapcsolók, all_on);
    for (const névlista *list : {&settings_.gratula, &settings_.helyes, &settings_.hiba})
        EXPECT_EQ(list->darab(), 0);
}

TEST_F(SoundSettings, have_their_sounds_in_the_folder_hangok) {
    EXPECT_EQ(settings_.hangmappa(), program_ + u"/hangok"_s);
}

TEST_F(SoundSettings, write_exactly_these_bytes) {
    settings_.kapcsolók = {true, false, true, false, true};
    settings_.gratula.feltölt({u"két szó.wav"_s, u"taps.wav"_s});
    settings_.helyes.feltölt({u"őű.wav"_s});

    EXPECT_FALSE(settings_.ment());

    EXPECT_EQ(read_file(settings_file("grathang.ini")),
              " 1\r\n 0\r\n 1\r\n 0\r\n 1\r\nk\xe9t sz\xf3.wav\r\ntaps.wav\r\n");
    EXPECT_EQ(read_file(settings_file("helyeshang.ini")), "\xf5\xfb.wav\r\n");
    EXPECT_EQ(read_file(settings_file("hibahang.ini")), "");
}

TEST_F(SoundSettings, write_the_switches_in_their_order) {
    const QByteArray on(" 1\r\n");
    const QByteArray off(" 0\r\n");
    for (const auto which : {hangbeállítások::gratulálópanelen, hangbeállítások::helyesnél, hangbeállítások::hibásnál,
                             hangbeállítások::segítségkérésnél, hangbeállítások::főablakban}) {
        settings_.kapcsolók.fill(false);
        settings_.kapcsolók.at(which) = true;

        EXPECT_FALSE(settings_.ment());

        const auto place = static_cast<qsizetype>(which);
        EXPECT_EQ(read_file(settings_file("grathang.ini")), off.repeated(place) + on + off.repeated(4 - place));
    }
    EXPECT_EQ(hangbeállítások::gratulálópanelen, 0U);
    EXPECT_EQ(hangbeállítások::főablakban, 4U);
}

TEST_F(SoundSettings, read_what_they_wrote) {
    settings_.kapcsolók = {false, true, true, false, false};
    settings_.gratula.feltölt({u"őű.wav"_s, u"gong.wav"_s});
    settings_.helyes.feltölt({u"gong.wav"_s});
    settings_.hiba.feltölt({u"taps.wav"_s, u"két szó.wav"_s});
    EXPECT_FALSE(settings_.ment());
    hangbeállítások read(program_);

    EXPECT_FALSE(read.betölt());

    EXPECT_EQ(read.kapcsolók, settings_.kapcsolók);
    EXPECT_EQ(read.gratula.nevek(), settings_.gratula.nevek());
    EXPECT_EQ(read.helyes.nevek(), settings_.helyes.nevek());
    EXPECT_EQ(read.hiba.nevek(), settings_.hiba.nevek());
}

TEST_F(SoundSettings, take_everything_from_the_files_again) {
    write_file(settings_file("grathang.ini"), " 0\r\n 0\r\n 0\r\n 0\r\n 0\r\ntaps.wav\r\n");
    EXPECT_FALSE(settings_.betölt());
    settings_.kapcsolók = all_on;
    settings_.gratula.hozzáad(u"gong.wav"_s);
    settings_.hiba.hozzáad(u"gong.wav"_s);

    EXPECT_FALSE(settings_.betölt());

    EXPECT_EQ(settings_.kapcsolók, Switches{});
    EXPECT_EQ(settings_.gratula.nevek(), QStringList(u"taps.wav"_s));
    EXPECT_EQ(settings_.gratula.kijelölt(), -1);
    EXPECT_EQ(settings_.hiba.nevek(), QStringList());
}

TEST_F(SoundSettings, go_back_to_all_on_and_no_sounds_when_there_is_no_file) {
    settings_.kapcsolók = {};
    settings_.gratula.hozzáad(u"taps.wav"_s);

    EXPECT_FALSE(settings_.betölt());

    EXPECT_EQ(settings_.kapcsolók, all_on);
    EXPECT_EQ(settings_.gratula.darab(), 0);
}

TEST_F(SoundSettings, drop_sounds_whose_file_is_missing_in_silence) {
    write_file(settings_file("grathang.ini"), " 1\r\n 1\r\n 1\r\n 1\r\n 1\r\nnincs.wav\r\ntaps.wav\r\n");
    write_file(settings_file("helyeshang.ini"), "taps.wav\r\nnincs.wav\r\n");
    write_file(settings_file("hibahang.ini"), "nincs.wav\r\n");

    EXPECT_FALSE(settings_.betölt());

    EXPECT_EQ(settings_.gratula.nevek(), QStringList(u"taps.wav"_s));
    EXPECT_EQ(settings_.helyes.nevek(), QStringList(u"taps.wav"_s));
    EXPECT_EQ(settings_.hiba.nevek(), QStringList());
}

TEST_F(SoundSettings, drop_a_folder_that_has_the_name_of_a_sound) {
    QDir(program_).mkpath(u"hangok/x.wav"_s);
    write_file(settings_file("hibahang.ini"), "x.wav\r\n\r\n.\r\n..\r\n");

    EXPECT_FALSE(settings_.betölt());

    EXPECT_EQ(settings_.hiba.nevek(), QStringList());
}

TEST_F(SoundSettings, drop_names_that_lead_into_another_folder) {
    write_file(program_ + u"/kint.wav"_s, "");
    // To one system a file of a folder in there, to another one a file with an odd name.
    QDir(program_).mkpath(u"hangok/a"_s);
    write_file(sound(u"a\\b.wav"_s), "");
    write_file(settings_file("helyeshang.ini"),
               "../kint.wav\r\n" + QFile::encodeName(program_) + "/kint.wav\r\na\\b.wav\r\ntaps.wav\r\n");

    EXPECT_FALSE(settings_.betölt());

    EXPECT_EQ(settings_.helyes.nevek(), QStringList(u"taps.wav"_s));
}

TEST_F(SoundSettings, have_each_name_once) {
    write_file(settings_file("hibahang.ini"), "taps.wav\r\ngong.wav\r\ntaps.wav\r\n");

    EXPECT_FALSE(settings_.betölt());

    EXPECT_EQ(settings_.hiba.nevek(), (QStringList{u"taps.wav"_s, u"gong.wav"_s}));
}

TEST_F(SoundSettings, keep_missing_switches_on_and_tell_so_when_a_file_has_fewer_than_five_numbers) {
    write_file(settings_file("grathang.ini"), " 0\r\n 0\r\n 0\r\n");
    write_file(settings_file("hibahang.ini"), "gong.wav\r\n");

    const auto failure = settings_.betölt();

    ASSERT_TRUE(failure);
    EXPECT_TRUE(failure->sentence.contains(u"grathang.ini” fájl nem öt kapcsolóval kezdődik."_s));
    EXPECT_EQ(settings_.kapcsolók, (Switches{false, false, false, true, true}));
    EXPECT_EQ(settings_.hiba.nevek(), QStringList(u"gong.wav"_s));
}

TEST_F(SoundSettings, read_the_names_behind_fewer_than_five_numbers) {
    write_file(settings_file("grathang.ini"), " 0\r\ntaps.wav\r\ngong.wav\r\n");

    EXPECT_TRUE(settings_.betölt());

    EXPECT_EQ(settings_.gratula.nevek(), (QStringList{u"taps.wav"_s, u"gong.wav"_s}));
}

TEST_F(SoundSettings, stay_on_when_letters_stand_in_place_of_the_numbers) {
    write_file(settings_file("grathang.ini"), "igen\r\nnem\r\nnem\r\nigen\r\nnem\r\ntaps.wav\r\n");

    EXPECT_TRUE(settings_.betölt());

    EXPECT_EQ(settings_.kapcsolók, all_on);
    EXPECT_EQ(settings_.gratula.nevek(), QStringList(u"taps.wav"_s));
}

TEST_F(SoundSettings, tell_of_a_file_of_zero_bytes) {
    write_file(settings_file("grathang.ini"), "");

    EXPECT_TRUE(settings_.betölt());

    EXPECT_EQ(settings_.kapcsolók, all_on);
}

TEST_F(SoundSettings, tell_of_each_file_that_cannot_be_read_and_take_the_others) {
    write_file(settings_file("grathang.ini"), " 0\r\n 0\r\n 0\r\n 0\r\n 0\r\ntaps.wav\r\n");
    write_file(settings_file("hibahang.ini"), "gong.wav\r\n");
    const UnreadableFile unreadable(settings_file("helyeshang.ini"));

    const auto failure = settings_.betölt();

    ASSERT_TRUE(failure);
    EXPECT_TRUE(failure->sentence.contains(u"helyeshang.ini” fájl nem olvasható"_s));
    EXPECT_EQ(settings_.gratula.darab(), 1);
    EXPECT_EQ(settings_.hiba.darab(), 1);
}

TEST_F(SoundSettings, replace_every_file_even_when_its_list_is_empty) {
    for (const char *name : {"grathang.ini", "helyeshang.ini", "hibahang.ini"})
        write_file(settings_file(name), "old");

    EXPECT_FALSE(settings_.ment());

    EXPECT_EQ(read_file(settings_file("grathang.ini")), " 1\r\n 1\r\n 1\r\n 1\r\n 1\r\n");
    EXPECT_EQ(read_file(settings_file("helyeshang.ini")), "");
    EXPECT_EQ(read_file(settings_file("hibahang.ini")), "");
}

TEST_F(SoundSettings, make_the_folder_for_their_files) {
    QDir(program_ + u"/kavaro"_s).removeRecursively();

    EXPECT_FALSE(settings_.ment());

    EXPECT_TRUE(QFileInfo(settings_file("hibahang.ini")).isFile());
}

TEST_F(SoundSettings, tell_why_they_could_not_be_written) {
    QDir(program_ + u"/kavaro"_s).removeRecursively();
    write_file(program_ + u"/kavaro"_s, "a file in the place of the folder");

    const auto failure = settings_.ment();

    ASSERT_TRUE(failure);
    EXPECT_TRUE(failure->sentence.contains(QDir::toNativeSeparators(u"/kavaro"_s) +
                                           u"” mappa nem hozható létre: a helyén egy fájl van."_s));
}

TEST_F(SoundSettings, replace_no_file_when_the_code_page_lacks_a_letter) {
    for (const char *name : {"grathang.ini", "helyeshang.ini", "hibahang.ini"})
        write_file(settings_file(name), "old");
    settings_.hiba.feltölt({u"Ω.wav"_s});

    const auto failure = settings_.ment();

    ASSERT_TRUE(failure);
    EXPECT_TRUE(failure->sentence.startsWith(u"A(z) „Ω.wav” nevű fájl nem kerülhet a listára"_s));
    for (const char *name : {"grathang.ini", "helyeshang.ini", "hibahang.ini"})
        EXPECT_EQ(read_file(settings_file(name)), "old") << name;
}

TEST_F(SoundSettings, forget_a_sound_on_all_three_lists) {
    for (névlista *list : {&settings_.gratula, &settings_.helyes, &settings_.hiba})
        list->feltölt({u"taps.wav"_s, u"gong.wav"_s});
    settings_.helyes.kijelöl(0);

    settings_.elfelejt(u"taps.wav"_s);

    for (const névlista *list : {&settings_.gratula, &settings_.helyes, &settings_.hiba})
        EXPECT_EQ(list->nevek(), QStringList(u"gong.wav"_s));
    EXPECT_EQ(settings_.helyes.kijelölt(), 0);
}

}  // namespace
