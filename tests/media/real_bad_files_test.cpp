// What the real player makes of files that are damaged, far too large or not there: silence, soon, and afterwards it
// plays as before.

#include <QDir>

#include "support/real_playback_fixture.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 hundred_mebibytes = 100 * 1024 * 1024;
constexpr qint64 header_size = 44;
/// Nobody would wait longer. Far more than it takes, because the machine may be busy.
constexpr qint64 bearable = 10000;

class RealBadFiles : public RealPlayback {
  protected:
    /// Plays the wave `path` and returns how many milliseconds the call took.
    qint64 time_of_wave(const QString &path) {
        QElapsedTimer clock;
        clock.start();
        player_.hanglejátszás(QString(path));
        return clock.elapsed();
    }

    qint64 time_of_piece(const QString &path) {
        QElapsedTimer clock;
        clock.start();
        player_.midilejátszás(path);
        return clock.elapsed();
    }

    [[nodiscard]] bool piece_ends() {
        return wait_for([this] { return player_.midiállapot() != u"playing"_s; });
    }
};

TEST_F(RealBadFiles, passes_over_a_wave_that_is_no_wave) {
    player_.hanglejátszás(file("x.wav", QByteArray("This is a letter, not a sound. ").repeated(1000)));

    EXPECT_EQ(wave_mode(), QString());
    EXPECT_TRUE(can_play_a_wave());
}

TEST_F(RealBadFiles, passes_over_a_wave_of_zero_bytes) {
    player_.hanglejátszás(file("x.wav", ""));

    EXPECT_EQ(wave_mode(), QString());
    EXPECT_TRUE(can_play_a_wave());
}

TEST_F(RealBadFiles, passes_over_a_wave_without_samples) {
    player_.hanglejátszás(file("x.wav", wave_header(0)));

    EXPECT_TRUE(wait_for([this] { return wave_mode() != u"playing"_s; }));
    EXPECT_TRUE(can_play_a_wave());
}

TEST_F(RealBadFiles, passes_over_a_wave_that_ends_within_its_header) {
    for (const int size : {4, 12, 20, 30, 43}) {
        player_.hanglejátszás(file("x.wav", wave_of(1000, 1).first(size)));

        EXPECT_EQ(wave_mode(), QString()) << size;
    }
    EXPECT_TRUE(can_play_a_wave());
}

TEST_F(RealBadFiles, plays_what_there_is_of_a_wave_that_promises_four_gigabytes) {
    constexpr quint32 promised = 0xFFFFFFF0;
    const QByteArray real = wave_of(1000, 2);

    EXPECT_LT(time_of_wave(file("x.wav", wave_header(promised) + real.sliced(header_size))), bearable);

    EXPECT_TRUE(can_play_a_wave());
}

TEST_F(RealBadFiles, passes_over_other_music_that_is_named_a_wave) {
    player_.hanglejátszás(file("x.wav", midi_of({69}, 10)));

    EXPECT_EQ(wave_mode(), QString());
    EXPECT_TRUE(can_play_a_wave());
}

TEST_F(RealBadFiles, passes_over_a_midi_piece_of_zero_bytes) {
    player_.midilejátszás(file("x.mid", ""));

    EXPECT_TRUE(piece_ends());
    EXPECT_TRUE(can_play_a_piece());
}

TEST_F(RealBadFiles, comes_to_the_end_of_a_midi_piece_that_was_cut_anywhere) {
    const QByteArray whole = midi_of({61, 64, 69}, 1);
    for (qsizetype size = 1; size < whole.size(); size += 3) {
        player_.midilejátszás(file("x.mid", whole.first(size)));

        EXPECT_TRUE(piece_ends()) << size;
    }
    EXPECT_TRUE(can_play_a_piece());
}

TEST_F(RealBadFiles, passes_over_a_wave_that_is_named_a_midi_piece) {
    player_.midilejátszás(file("x.mid", wave_of(1000, 10)));

    EXPECT_TRUE(piece_ends());
    EXPECT_TRUE(silent(listen()));
    EXPECT_TRUE(can_play_a_piece());
}

TEST_F(RealBadFiles, plays_no_wave_as_music) {
    player_.midilejátszás(file("tone.wav", wave_of(1000, 5)));

    EXPECT_EQ(player_.midiállapot(), QString());
}

TEST_F(RealBadFiles, passes_over_a_folder_that_is_named_like_a_sound) {
    for (const char *name : {"x.wav", "x.mid"})
        ASSERT_TRUE(QDir().mkpath(in_folder(name)));

    player_.hanglejátszás(in_folder("x.wav"));
    player_.midilejátszás(in_folder("x.mid"));

    EXPECT_EQ(wave_mode(), QString());
    EXPECT_EQ(player_.midiállapot(), QString());
    EXPECT_TRUE(can_play_a_wave());
    EXPECT_TRUE(can_play_a_piece());
}

TEST_F(RealBadFiles, falls_silent_when_the_next_file_is_missing) {
    ASSERT_TRUE(can_play_a_wave());
    ASSERT_TRUE(can_play_a_piece());

    player_.hanglejátszás(in_folder("nincs.wav"));
    player_.midilejátszás(in_folder("nincs.mid"));

    EXPECT_TRUE(silent(listen()));
    EXPECT_TRUE(can_play_a_wave());
    EXPECT_TRUE(can_play_a_piece());
}

TEST_F(RealBadFiles, plays_a_wave_of_a_hundred_mebibytes_soon) {
    const auto samples = static_cast<quint32>(hundred_mebibytes - header_size);

    const qint64 milliseconds = time_of_wave(large_file("x.wav", wave_header(samples), hundred_mebibytes));

    RecordProperty("milliseconds", static_cast<int>(milliseconds));
    EXPECT_LT(milliseconds, bearable);
    EXPECT_EQ(wave_mode(), u"playing"_s);
    EXPECT_TRUE(can_play_a_wave());
}

TEST_F(RealBadFiles, passes_over_a_hundred_mebibytes_of_rubbish_soon) {
    const QString wave = large_file("x.wav", "rubbish", hundred_mebibytes);
    const QString piece = large_file("x.mid", "rubbish", hundred_mebibytes);

    const qint64 wave_milliseconds = time_of_wave(wave);
    const qint64 piece_milliseconds = time_of_piece(piece);

    RecordProperty("wave_milliseconds", static_cast<int>(wave_milliseconds));
    RecordProperty("piece_milliseconds", static_cast<int>(piece_milliseconds));
    EXPECT_LT(wave_milliseconds, bearable);
    EXPECT_LT(piece_milliseconds, bearable);
    EXPECT_TRUE(piece_ends());
    EXPECT_TRUE(can_play_a_wave());
    EXPECT_TRUE(can_play_a_piece());
}

TEST_F(RealBadFiles, passes_over_waves_that_would_grow_beyond_all_bounds) {
    struct Wave {
        quint32 bytes;
        quint32 rate;
    };
    // Of the samples of a telephone the converter makes 96 times as many bytes on its way: just above 2³². At a sample
    // a second, 65536 bytes go beyond that, too; 3000 stay below and would become 50 minutes.
    for (const Wave wave : {Wave{(1ULL << 32U) / 96 + 200'000, 8000}, Wave{65'536, 1}, Wave{3000, 1}}) {
        const QString path =
            large_file("x.wav", wave_header(wave.bytes, 8, wave.rate), header_size + static_cast<qint64>(wave.bytes));

        EXPECT_LT(time_of_wave(path), bearable) << wave.bytes;
        EXPECT_EQ(wave_mode(), QString()) << wave.bytes;
    }
    EXPECT_TRUE(can_play_a_wave());
}

TEST_F(RealBadFiles, passes_over_a_midi_piece_of_a_hundred_mebibytes_of_notes) {
    constexpr qsizetype notes = hundred_mebibytes / 8;
    const QByteArray track = QByteArray("\x00\x90\x45\x40\x00\x80\x45\x00", 8).repeated(notes);
    const QString path =
        file("x.mid", midi_of({69}, 1).first(14) + "MTrk" + big_endian(static_cast<quint32>(track.size())) + track);

    EXPECT_LT(time_of_piece(path), bearable);

    EXPECT_EQ(player_.midiállapot(), QString());
    EXPECT_TRUE(can_play_a_piece());
}

TEST_F(RealBadFiles, plays_in_silence_on_a_machine_without_a_sound_device) {
    qputenv("SDL_AUDIODRIVER", "nonexistent");
    QElapsedTimer clock;
    clock.start();

    player_.hanglejátszás(file("tone.wav", wave_of(1000, 1)));
    player_.midilejátszás(file("piece.mid", midi_of({69}, 1)));

    EXPECT_LT(clock.elapsed(), bearable);
    EXPECT_EQ(wave_mode(), u"playing"_s);
    EXPECT_EQ(player_.midiállapot(), u"playing"_s);
    EXPECT_TRUE(wait_for([this] { return wave_mode() != u"playing"_s; }));
}

}  // namespace
