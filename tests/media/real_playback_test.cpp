#include <SDL_mixer.h>

#include <cmath>
#include <csignal>

#include "support/real_playback_fixture.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int key_a = 69;
constexpr int key_e = 76;
constexpr int key_c_sharp = 61;

// 1000 Hz and 2300 Hz are no overtones of those keys.
constexpr int low_tone = 1000;
constexpr int high_tone = 2300;

TEST_F(RealPlayback, lets_a_wave_and_a_midi_piece_sound_together) {
    player_.midilejátszás(file("piece.mid", midi_of({key_a, key_e}, long_seconds)));
    player_.hanglejátszás(file("tone.wav", wave_of(low_tone, long_seconds)));

    const std::vector<double> heard = listen(1);

    EXPECT_GT(prominence_of(low_tone, heard), heard_clearly);
    EXPECT_GT(prominence_of(hertz_of_key(key_a), heard), heard_clearly);
    EXPECT_GT(prominence_of(hertz_of_key(key_e), heard), heard_clearly);
    EXPECT_LT(prominence_of(hertz_of_key(key_c_sharp), heard), heard_clearly);
    EXPECT_LT(prominence_of(high_tone, heard), heard_clearly);
}

TEST_F(RealPlayback, plays_music_at_sixty_percent_so_that_waves_are_heard_above_it) {
    const auto energy_of_piece = [this](const char *name) {
        player_.midilejátszás(file(name, midi_of({key_a}, long_seconds)));
        return energy_at(hertz_of_key(key_a), listen(1));
    };
    const double usual = energy_of_piece("usual.mid");
    Mix_VolumeMusic(MIX_MAX_VOLUME);
    const double full = energy_of_piece("full.mid");

    // The energy goes with the square of the volume.
    EXPECT_NEAR(std::sqrt(usual / full), 0.6, 0.03);
}

TEST_F(RealPlayback, cuts_off_a_wave_by_the_next_one) {
    player_.hanglejátszás(file("low.wav", wave_of(low_tone, long_seconds)));
    const std::vector<double> first = listen();
    player_.hanglejátszás(file("high.wav", wave_of(high_tone, long_seconds)));
    const std::vector<double> second = listen();

    EXPECT_GT(prominence_of(low_tone, first), heard_clearly);
    EXPECT_LT(prominence_of(high_tone, first), heard_clearly);
    EXPECT_GT(prominence_of(high_tone, second), heard_clearly);
    EXPECT_LT(energy_at(low_tone, second), energy_at(low_tone, first) / 10000);
}

TEST_F(RealPlayback, cuts_off_a_midi_piece_by_the_next_one) {
    player_.midilejátszás(file("a.mid", midi_of({key_a}, long_seconds)));
    const std::vector<double> first = listen();
    player_.midilejátszás(file("e.mid", midi_of({key_e}, long_seconds)));
    const std::vector<double> second = listen();

    EXPECT_GT(prominence_of(hertz_of_key(key_a), first), heard_clearly);
    EXPECT_GT(prominence_of(hertz_of_key(key_e), second), heard_clearly);
    EXPECT_LT(prominence_of(hertz_of_key(key_a), second), heard_clearly);
}

TEST_F(RealPlayback, falls_silent_for_an_empty_name) {
    player_.hanglejátszás(file("tone.wav", wave_of(low_tone, long_seconds)));
    player_.midilejátszás(file("piece.mid", midi_of({key_a}, long_seconds)));
    EXPECT_FALSE(silent(listen()));

    player_.hangot_leállít();
    player_.midilejátszás(QString());

    EXPECT_TRUE(silent(listen()));
    EXPECT_EQ(player_.midiállapot(), QString());
}

TEST_F(RealPlayback, stops_the_wave_alone_and_lets_the_music_go_on) {
    player_.midilejátszás(file("piece.mid", midi_of({key_a}, long_seconds)));
    player_.hanglejátszás(file("tone.wav", wave_of(low_tone, long_seconds)));

    player_.hangot_leállít();

    const std::vector<double> heard = listen();
    EXPECT_GT(prominence_of(hertz_of_key(key_a), heard), heard_clearly);
    EXPECT_LT(prominence_of(low_tone, heard), heard_clearly);
    EXPECT_EQ(player_.midiállapot(), u"playing"_s);
}

TEST_F(RealPlayback, says_that_a_piece_plays_until_its_end) {
    player_.midilejátszás(file("short.mid", midi_of({key_a}, 2)));
    EXPECT_EQ(player_.midiállapot(), u"playing"_s);

    EXPECT_TRUE(wait_for([this] { return player_.midiállapot() != u"playing"_s; }));
    EXPECT_EQ(player_.midiállapot(), u"stopped"_s);
}

TEST_F(RealPlayback, plays_a_wave_once) {
    player_.hanglejátszás(file("short.wav", wave_of(low_tone, 2)));
    EXPECT_EQ(wave_mode(), u"playing"_s);

    EXPECT_TRUE(wait_for([this] { return wave_mode() == u"stopped"_s; }));
    EXPECT_TRUE(silent(listen()));
}

TEST_F(RealPlayback, plays_the_same_wave_again) {
    const QString path = file("short.wav", wave_of(low_tone, 2));
    player_.hanglejátszás(QString(path));
    ASSERT_TRUE(wait_for([this] { return wave_mode() == u"stopped"_s; }));

    player_.hanglejátszás(QString(path));

    EXPECT_GT(prominence_of(low_tone, listen()), heard_clearly);
}

TEST_F(RealPlayback, plays_waves_of_other_rates_and_sizes_at_their_pitch) {
    QByteArray samples;
    for (int i = 0; i < 8000 * long_seconds; ++i)
        samples += i % 8 < 4 ? '\x60' : '\xA0';  // 8 samples a period at 8000 Hz: 1000 Hz
    player_.hanglejátszás(file("telephone.wav", wave_header(static_cast<quint32>(samples.size()), 8, 8000) + samples));

    EXPECT_GT(prominence_of(low_tone, listen()), heard_clearly);
}

TEST_F(RealPlayback, plays_names_with_blanks_quotation_marks_and_hungarian_letters) {
    for (const char16_t *name : {u"két  szó", u"\"idézett\" név", u"árvíztűrő tükörfúrógép", u"' type x alias \"y"}) {
        const QString wave = in_folder(QString::fromUtf16(name) + u".wav"_s);
        const QString piece = in_folder(QString::fromUtf16(name) + u".mid"_s);
        write_file(wave, wave_of(low_tone, long_seconds));
        write_file(piece, midi_of({key_a}, long_seconds));

        player_.hanglejátszás(QString(wave));
        player_.midilejátszás(piece);

        const std::vector<double> heard = listen();
        EXPECT_GT(prominence_of(low_tone, heard), heard_clearly) << wave.toStdString();
        EXPECT_GT(prominence_of(hertz_of_key(key_a), heard), heard_clearly) << piece.toStdString();
        player_.hangot_leállít();
        player_.midilejátszás(QString());
    }
}

TEST_F(RealPlayback, goes_on_with_files_that_are_deleted_while_they_play) {
    const QString wave = file("tone.wav", wave_of(low_tone, long_seconds));
    const QString piece = file("piece.mid", midi_of({key_a}, long_seconds));
    player_.hanglejátszás(QString(wave));
    player_.midilejátszás(piece);

    EXPECT_TRUE(QFile::remove(wave) && QFile::remove(piece));

    const std::vector<double> heard = listen();
    EXPECT_GT(prominence_of(low_tone, heard), heard_clearly);
    EXPECT_GT(prominence_of(hertz_of_key(key_a), heard), heard_clearly);
}

TEST_F(RealPlayback, opens_no_device_before_the_first_sound) {
    player_.hangot_leállít();
    player_.midilejátszás(QString());
    static_cast<void>(player_.midiállapot());
    player_.hanglejátszás(in_folder("nincs.wav"));

    EXPECT_FALSE(QFileInfo::exists(in_folder("heard.raw")));
}

void own_handler(int /*number*/) {}

TEST_F(RealPlayback, leaves_the_signals_that_end_the_program_alone) {
    for (const int number : {SIGINT, SIGTERM})
        std::signal(number, own_handler);

    ASSERT_TRUE(can_play_a_wave());

    for (const int number : {SIGINT, SIGTERM})
        EXPECT_EQ(std::signal(number, SIG_DFL), own_handler);
}

TEST_F(RealPlayback, leaves_the_default_of_the_signals_that_end_the_program) {
    ASSERT_TRUE(can_play_a_piece());

    for (const int number : {SIGINT, SIGTERM})
        EXPECT_EQ(std::signal(number, SIG_DFL), SIG_DFL);
}

}  // namespace
