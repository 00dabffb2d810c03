#include "media/playback.h"

#include <gtest/gtest.h>

#include "support/fake_multimedia.h"
#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

constexpr quint32 file_not_found = 275;

const QString wave = u"/program/hangok/taps.wav"_s;
const QString other_wave = u"/program/hangok/gong.wav"_s;
const QString piece = u"/program/zenemid/tavasz.mid"_s;
const QString other_piece = u"/program/zenemid/est.mid"_s;

class Playback : public testing::Test {
  protected:
    FakeMultimedia device_;
    global::programállapot state_{u"/program"_s, {}, {}};
    lejátszó player_{device_, state_};
};

TEST_F(Playback, starts_with_both_devices_closed_and_sends_nothing) {
    EXPECT_FALSE(player_.eszköznyitva()[0]);
    EXPECT_FALSE(player_.eszköznyitva()[1]);
    EXPECT_FALSE(player_.zeneszól());
    EXPECT_EQ(device_.sent, QStringList());
}

TEST_F(Playback, opens_a_wave_in_quotation_marks_and_plays_it_without_waiting) {
    player_.hanglejátszás(QString(wave));

    EXPECT_EQ(device_.sent,
              (QStringList{u"open \"/program/hangok/taps.wav\" type waveaudio alias hang|0"_s, u"play hang |0"_s}));
    EXPECT_TRUE(player_.eszköznyitva()[0]);
    EXPECT_FALSE(player_.eszköznyitva()[1]);
}

TEST_F(Playback, opens_a_midi_piece_in_quotation_marks_and_plays_it_without_waiting) {
    player_.midilejátszás(piece);

    EXPECT_EQ(device_.sent,
              (QStringList{u"open \"/program/zenemid/tavasz.mid\" type sequencer alias midi|0"_s, u"play midi |0"_s}));
    EXPECT_TRUE(player_.eszköznyitva()[1]);
    EXPECT_FALSE(player_.eszköznyitva()[0]);
}

TEST_F(Playback, cuts_off_a_wave_by_the_next_one) {
    player_.hanglejátszás(QString(wave));
    device_.take_sent();

    player_.hanglejátszás(QString(other_wave));

    EXPECT_EQ(device_.sent,
              (QStringList{u"close hang|0"_s, u"open \"/program/hangok/gong.wav\" type waveaudio alias hang|0"_s,
                           u"play hang |0"_s}));
}

TEST_F(Playback, cuts_off_a_midi_piece_by_the_next_one) {
    player_.midilejátszás(piece);
    device_.take_sent();

    player_.midilejátszás(other_piece);

    EXPECT_EQ(device_.sent,
              (QStringList{u"close midi|0"_s, u"open \"/program/zenemid/est.mid\" type sequencer alias midi|0"_s,
                           u"play midi |0"_s}));
    EXPECT_TRUE(player_.zeneszól());
}

TEST_F(Playback, lets_a_wave_and_a_midi_piece_sound_together) {
    player_.midilejátszás(piece);
    player_.hanglejátszás(QString(wave));

    EXPECT_EQ(device_.sent.filter(u"close"_s), QStringList());
    EXPECT_TRUE(player_.eszköznyitva()[0]);
    EXPECT_TRUE(player_.eszköznyitva()[1]);
}

TEST_F(Playback, only_closes_the_wave_for_an_empty_name) {
    player_.hanglejátszás(QString(wave));
    device_.take_sent();

    player_.hanglejátszás(QString());

    EXPECT_EQ(device_.sent, QStringList(u"close hang|0"_s));
    EXPECT_FALSE(player_.eszköznyitva()[0]);
}

TEST_F(Playback, only_closes_the_midi_piece_for_an_empty_name) {
    player_.midilejátszás(piece);
    device_.take_sent();

    player_.midilejátszás(QString());

    EXPECT_EQ(device_.sent, QStringList(u"close midi|0"_s));
    EXPECT_FALSE(player_.eszköznyitva()[1]);
    EXPECT_FALSE(player_.zeneszól());
}

TEST_F(Playback, sends_nothing_for_a_second_empty_name) {
    player_.hanglejátszás(QString(wave));
    player_.midilejátszás(piece);
    player_.hanglejátszás(QString());
    player_.midilejátszás(QString());
    device_.take_sent();

    player_.hanglejátszás(QString());
    player_.midilejátszás(QString());
    player_.hangot_leállít();

    EXPECT_EQ(device_.sent, QStringList());
}

TEST_F(Playback, plays_the_silence_beside_the_program_folder_for_an_asterisk_and_tells_its_path) {
    QString file = u"*"_s;

    player_.hanglejátszás(file);

    EXPECT_EQ(file, u"/programnull.wav"_s);
    EXPECT_EQ(device_.sent.value(0), u"open \"/programnull.wav\" type waveaudio alias hang|0"_s);
}

TEST_F(Playback, takes_the_program_folder_of_the_moment_for_an_asterisk) {
    QString file = u"*"_s;
    state_.programkönyvtár = u"/other/"_s;

    player_.hanglejátszás(file);

    EXPECT_EQ(file, u"/other/null.wav"_s);
}

TEST_F(Playback, leaves_the_name_of_any_other_wave_as_it_is) {
    for (const QString &name : {wave, u"**"_s, u"*.wav"_s, QString()}) {
        QString file = name;

        player_.hanglejátszás(file);

        EXPECT_EQ(file, name);
    }
}

TEST_F(Playback, takes_an_asterisk_for_the_name_of_a_midi_file) {
    player_.midilejátszás(u"*"_s);

    EXPECT_EQ(device_.sent.value(0), u"open \"*\" type sequencer alias midi|0"_s);
}

TEST_F(Playback, quotes_names_with_blanks_and_hungarian_letters) {
    player_.hanglejátszás(u"/a b/őszi hűs  szél.wav"_s);
    player_.midilejátszás(u"/a b/Űrhajó.mid"_s);

    EXPECT_EQ(device_.sent.value(0), u"open \"/a b/őszi hűs  szél.wav\" type waveaudio alias hang|0"_s);
    EXPECT_EQ(device_.sent.value(2), u"open \"/a b/Űrhajó.mid\" type sequencer alias midi|0"_s);
}

TEST_F(Playback, doubles_the_quotation_marks_of_a_name) {
    player_.hanglejátszás(u"/x\" alias y \"z.wav"_s);
    player_.midilejátszás(u"\""_s);

    EXPECT_EQ(device_.sent.value(0), u"open \"/x\"\" alias y \"\"z.wav\" type waveaudio alias hang|0"_s);
    EXPECT_EQ(device_.sent.value(2), u"open \"\"\"\" type sequencer alias midi|0"_s);
}

TEST_F(Playback, takes_a_device_for_open_after_a_failure_and_closes_it_before_the_next_sound) {
    device_.code = file_not_found;
    player_.hanglejátszás(QString(wave));
    player_.midilejátszás(piece);
    EXPECT_TRUE(player_.eszköznyitva()[0]);
    EXPECT_TRUE(player_.eszköznyitva()[1]);
    device_.take_sent();

    player_.hanglejátszás(QString(wave));
    player_.midilejátszás(piece);

    EXPECT_EQ(device_.sent.value(0), u"close hang|0"_s);
    EXPECT_EQ(device_.sent.value(3), u"close midi|0"_s);
}

TEST_F(Playback, says_that_music_sounds_from_its_start_on_even_if_that_failed) {
    player_.hanglejátszás(QString(wave));
    EXPECT_FALSE(player_.zeneszól());
    device_.code = file_not_found;

    player_.midilejátszás(piece);

    EXPECT_TRUE(player_.zeneszól());
}

TEST_F(Playback, opens_nothing_for_a_path_that_no_system_takes) {
    const QString path = u"/program/"_s + QChar(QChar::Null) + u"x"_s;
    player_.hanglejátszás(QString(wave));
    player_.midilejátszás(piece);
    device_.take_sent();

    player_.hanglejátszás(QString(path));
    player_.midilejátszás(path);

    EXPECT_EQ(device_.sent, (QStringList{u"close hang|0"_s, u"close midi|0"_s}));
    EXPECT_FALSE(player_.eszköznyitva()[0]);
    EXPECT_FALSE(player_.eszköznyitva()[1]);
    EXPECT_FALSE(player_.zeneszól());
}

TEST_F(Playback, asks_for_the_mode_with_room_for_255_characters) {
    device_.mode = u"paused"_s;

    EXPECT_EQ(player_.midiállapot(), u"paused"_s);
    EXPECT_EQ(device_.sent, QStringList(u"Status midi mode|255"_s));
}

TEST_F(Playback, has_no_mode_when_the_question_fails) {
    device_.mode = u"playing"_s;
    device_.code = 263;

    EXPECT_EQ(player_.midiállapot(), QString());
}

}  // namespace
