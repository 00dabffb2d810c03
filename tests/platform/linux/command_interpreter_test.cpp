#include "platform/linux/command_interpreter.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QFile>
#include <QTemporaryDir>

#include "support/fake_sound_player.h"
#include "support/files_for_tests.h"
#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

constexpr quint32 done = 0;
constexpr int room = 255;

class CommandInterpreterTest : public testing::Test {
  protected:
    CommandInterpreterTest() {
        write_file(wave_, "");
        write_file(piece_, "");
    }

    quint32 code_of(const QString &command) { return interpreter_.send(command, 0).code; }
    quint32 code_of(const char *command) { return code_of(QString::fromLatin1(command)); }

    quint32 open(const QString &path, const char *rest) {
        return code_of(u"open "_s + quoted_for_command(path) + u' ' + QString::fromLatin1(rest));
    }
    quint32 open_wave() { return open(wave_, "type waveaudio alias hang"); }
    quint32 open_piece() { return open(piece_, "type sequencer alias midi"); }

    QTemporaryDir folder_;
    QString wave_ = folder_.filePath(u"a.wav"_s);
    QString piece_ = folder_.filePath(u"b.mid"_s);
    SoundNotes notes_;
    std::chrono::steady_clock::time_point now_{std::chrono::hours(1)};
    CommandInterpreter interpreter_{FakeSoundPlayer::factory(notes_), [this] { return now_; }};
};

TEST_F(CommandInterpreterTest, opens_plays_and_closes_a_wave) {
    EXPECT_EQ(open_wave(), done);
    EXPECT_EQ(code_of("play hang "), done);
    EXPECT_EQ(code_of("close hang"), done);

    EXPECT_EQ(notes_.events,
              (QStringList{u"wave "_s + wave_ + u" opened"_s, wave_ + u" played"_s, wave_ + u" silenced"_s}));
}

TEST_F(CommandInterpreterTest, opens_plays_and_closes_a_midi_piece) {
    EXPECT_EQ(open_piece(), done);
    EXPECT_EQ(code_of("play midi "), done);
    EXPECT_EQ(code_of("close midi"), done);

    EXPECT_EQ(notes_.events,
              (QStringList{u"midi "_s + piece_ + u" opened"_s, piece_ + u" played"_s, piece_ + u" silenced"_s}));
}

TEST_F(CommandInterpreterTest, closes_one_sound_and_leaves_the_other) {
    open_wave();
    open_piece();
    notes_.take_events();

    code_of("close hang");

    EXPECT_EQ(notes_.events, QStringList(wave_ + u" silenced"_s));
}

TEST_F(CommandInterpreterTest, silences_what_is_open_at_its_end) {
    {
        CommandInterpreter other(FakeSoundPlayer::factory(notes_), [this] { return now_; });
        other.send(u"open "_s + quoted_for_command(wave_) + u" type waveaudio alias x"_s, 0);
        notes_.take_events();
    }

    EXPECT_EQ(notes_.events, QStringList(wave_ + u" silenced"_s));
}

TEST_F(CommandInterpreterTest, takes_small_letters_and_capitals_for_the_same_but_not_in_a_path) {
    EXPECT_EQ(open(wave_, "TYPE WaveAudio Alias Hang"), done);
    EXPECT_EQ(code_of("PLAY HANG"), done);
    EXPECT_EQ(interpreter_.send(u"sTATUS hANG mODE"_s, room).text, u"playing"_s);
    EXPECT_EQ(code_of("Close hANG"), done);

    EXPECT_EQ(open(folder_.filePath(u"A.WAV"_s), "type waveaudio alias x"), mci_error::file_not_found);
}

TEST_F(CommandInterpreterTest, takes_the_alias_before_the_type_too) {
    EXPECT_EQ(open(wave_, "alias hang type waveaudio"), done);
    EXPECT_EQ(code_of("play hang"), done);
}

TEST_F(CommandInterpreterTest, names_a_file_without_an_alias_by_its_path) {
    EXPECT_EQ(open(wave_, "type waveaudio"), done);

    EXPECT_EQ(code_of(u"play "_s + quoted_for_command(wave_)), done);
}

TEST_F(CommandInterpreterTest, opens_names_with_blanks_quotation_marks_and_hungarian_letters) {
    for (const char16_t *name : {u"két szó.wav", u"a\" alias b.wav", u"\".wav", u"őű  ŐŰ.wav", u"' ; #.wav"}) {
        const QString path = folder_.filePath(QString::fromUtf16(name));
        write_file(path, "");

        EXPECT_EQ(open(path, "type waveaudio alias x"), done);

        EXPECT_EQ(notes_.take_events(), QStringList(u"wave "_s + path + u" opened"_s));
        code_of("close x");
        notes_.take_events();
    }
}

TEST_F(CommandInterpreterTest, lets_no_path_break_out_of_its_command) {
    const QString path = folder_.filePath(u"nincs\" type waveaudio alias y"_s);

    EXPECT_EQ(open(path, "type waveaudio alias x"), mci_error::file_not_found);
    EXPECT_EQ(code_of("play y"), mci_error::invalid_device_name);
}

TEST_F(CommandInterpreterTest, answers_playing_while_a_piece_is_heard_and_stopped_before_and_after) {
    const QString question = u"Status midi mode"_s;
    open_piece();
    EXPECT_EQ(interpreter_.send(question, room).text, u"stopped"_s);

    code_of("play midi");
    EXPECT_EQ(interpreter_.send(question, room).text, u"playing"_s);

    notes_.heard = false;
    EXPECT_EQ(interpreter_.send(question, room).text, u"stopped"_s);
}

TEST_F(CommandInterpreterTest, has_no_answer_when_nothing_is_open) {
    const MultimediaAnswer answer = interpreter_.send(u"Status midi mode"_s, room);

    EXPECT_EQ(answer.code, mci_error::invalid_device_name);
    EXPECT_EQ(answer.text, QString());
}

TEST_F(CommandInterpreterTest, has_no_answer_when_there_is_no_room_for_it) {
    open_piece();

    for (const int length : {0, 7}) {
        const MultimediaAnswer answer = interpreter_.send(u"status midi mode"_s, length);
        EXPECT_EQ(answer.code, mci_error::answer_too_long) << length;
        EXPECT_EQ(answer.text, QString()) << length;
    }
    EXPECT_EQ(interpreter_.send(u"status midi mode"_s, 8).text, u"stopped"_s);
}

TEST_F(CommandInterpreterTest, tells_what_is_wrong_with_a_command) {
    open_wave();
    const std::vector<std::pair<const char *, quint32>> wrong{
        {"", mci_error::missing_command_string},
        {"   ", mci_error::missing_command_string},
        {"pause hang", mci_error::unrecognized_command},
        {"\"\"", mci_error::unrecognized_command},
        {"play", mci_error::missing_device_name},
        {"open", mci_error::missing_device_name},
        {"play midi", mci_error::invalid_device_name},
        {"close midi", mci_error::invalid_device_name},
        {"play hang wait", mci_error::unrecognized_keyword},
        {"close hang now", mci_error::unrecognized_keyword},
        {"status hang", mci_error::missing_parameter},
        {"status hang length", mci_error::unrecognized_keyword},
        {"status hang mode mode", mci_error::unrecognized_keyword},
        {"open \"a.wav type waveaudio", mci_error::no_closing_quote},
        {"open a.wav", mci_error::device_type_required},
        {"open a.wav alias x", mci_error::device_type_required},
        {"open a.wav type", mci_error::unrecognized_keyword},
        {"open a.wav type waveaudio alias", mci_error::unrecognized_keyword},
        {"open a.wav type waveaudio wait", mci_error::unrecognized_keyword},
        {"open a.wav type video alias x", mci_error::invalid_device_name},
    };

    for (const auto &[command, code] : wrong)
        EXPECT_EQ(code_of(command), code) << command;
}

TEST_F(CommandInterpreterTest, refuses_an_alias_that_is_taken_and_leaves_its_sound) {
    open_wave();
    code_of("play hang");
    notes_.take_events();

    EXPECT_EQ(open(wave_, "type waveaudio alias HANG"), mci_error::duplicate_alias);

    EXPECT_EQ(notes_.events, QStringList());
}

TEST_F(CommandInterpreterTest, finds_no_file_where_there_is_none_or_a_folder) {
    EXPECT_EQ(open(folder_.filePath(u"nincs.wav"_s), "type waveaudio alias x"), mci_error::file_not_found);
    EXPECT_EQ(open(folder_.path(), "type waveaudio alias x"), mci_error::file_not_found);
    EXPECT_EQ(open(QString(), "type waveaudio alias x"), mci_error::file_not_found);
}

TEST_F(CommandInterpreterTest, does_not_wait_for_the_other_end_of_a_pipe) {
    const QString pipe = folder_.filePath(u"pipe.wav"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);

    EXPECT_EQ(open(pipe, "type waveaudio alias x"), mci_error::file_not_found);
    EXPECT_EQ(notes_.events, QStringList());
}

TEST_F(CommandInterpreterTest, keeps_nothing_of_a_file_that_the_player_refuses) {
    notes_.readable = false;

    EXPECT_EQ(open_wave(), mci_error::invalid_file);

    EXPECT_EQ(code_of("play hang"), mci_error::invalid_device_name);
}

TEST_F(CommandInterpreterTest, tells_that_a_sound_could_not_be_played) {
    notes_.playable = false;
    open_wave();

    EXPECT_EQ(code_of("play hang"), mci_error::device_not_ready);
}

TEST_F(CommandInterpreterTest, makes_no_player_before_a_file_is_opened) {
    for (const char *command : {"play hang", "close hang", "status midi mode", "open nincs.wav type waveaudio alias x"})
        code_of(command);
    EXPECT_EQ(notes_.players, 0);

    open_wave();
    open_piece();

    EXPECT_EQ(notes_.players, 1);
}

TEST_F(CommandInterpreterTest, fails_when_nothing_can_be_played_at_all) {
    notes_.player = false;

    EXPECT_EQ(open_wave(), mci_error::device_not_installed);
}

TEST_F(CommandInterpreterTest, plays_on_a_machine_without_a_device_as_if_there_were_one) {
    notes_.device = false;
    open_piece();
    code_of("play midi");

    EXPECT_EQ(interpreter_.send(u"status midi mode"_s, room).text, u"playing"_s);
}

TEST_F(CommandInterpreterTest, does_not_look_for_a_missing_device_again_before_the_pause_is_over) {
    notes_.device = false;
    open_wave();
    code_of("close hang");

    now_ += CommandInterpreter::pause_without_device - std::chrono::milliseconds(1);
    open_wave();

    EXPECT_EQ(notes_.players, 1);
}

TEST_F(CommandInterpreterTest, looks_for_a_missing_device_again_after_the_pause) {
    notes_.device = false;
    open_wave();
    code_of("close hang");
    notes_.device = true;
    now_ += CommandInterpreter::pause_without_device;

    EXPECT_EQ(open_wave(), done);
    EXPECT_EQ(code_of("play hang"), done);
    EXPECT_EQ(notes_.players, 2);
}

TEST_F(CommandInterpreterTest, cuts_off_no_sound_to_look_for_a_device) {
    notes_.device = false;
    open_piece();
    now_ += CommandInterpreter::pause_without_device;

    open_wave();

    EXPECT_EQ(notes_.players, 1);
    EXPECT_FALSE(notes_.events.contains(piece_ + u" silenced"_s));
}

TEST_F(CommandInterpreterTest, keeps_a_device_that_it_has) {
    open_wave();
    code_of("close hang");
    now_ += CommandInterpreter::pause_without_device;

    open_wave();

    EXPECT_EQ(notes_.players, 1);
}

}  // namespace
