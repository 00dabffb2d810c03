#include "platform/linux/sdl/sdl_player.h"

#include <SDL.h>
#include <SDL_mixer.h>
#include <alsa/asoundlib.h>

#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <limits>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int rate = 44100;
constexpr int stereo = 2;
/// Frames that are mixed at a time: 46 ms.
constexpr int buffer = 2048;
constexpr int music_volume = MIX_MAX_VOLUME * 60 / 100;
constexpr int once = 1;
constexpr int any_channel = -1;
constexpr qint64 mebibyte = 1LL << 20;
/// A wave is read whole and brought into the mixer's form whole, in which it may take 25 minutes.
constexpr qint64 largest_wave = 128 * mebibyte;
constexpr qint64 largest_mixer_sound = 2 * largest_wave;
/// A piece of an hour takes a tenth of it. The synthesizer works through all that a piece says at one moment before
/// anything else can be asked of it.
constexpr qint64 largest_piece = mebibyte;

/// Where Debian, Fedora and Arch put what their packages of General MIDI sounds agree on, then single fonts.
const QStringList sound_fonts{
    u"/usr/share/sounds/sf2/default-GM.sf2"_s, u"/usr/share/sounds/sf3/default-GM.sf3"_s,
    u"/usr/share/soundfonts/default.sf2"_s,    u"/usr/share/sounds/sf2/TimGM6mb.sf2"_s,
    u"/usr/share/sounds/sf2/FluidR3_GM.sf2"_s, u"/usr/share/soundfonts/FluidR3_GM.sf2"_s,
};

/// A machine without a device is nothing to write about to the terminal.
void say_nothing(const char *, int, const char *, int, const char *, ...) {}

void choose_sound_font() {
    // What the user's environment names goes before.
    if (qEnvironmentVariableIsSet("SDL_SOUNDFONTS"))
        return;
    for (const QString &font : sound_fonts) {
        if (!QFileInfo(font).isFile())
            continue;
        Mix_SetSoundFonts(QFile::encodeName(font).constData());
        return;
    }
}

using Samples = std::unique_ptr<Uint8, void (*)(void *)>;

/// Sound in the mixer's form; `samples` is null when there is none.
struct MixerSound {
    Samples samples{nullptr, SDL_free};
    Uint32 size = 0;
};

/// Brings `size` bytes of a wave into the mixer's form. The mixer would do so itself, but it reckons the room for it
/// with 32 bits, and writes beyond it where a slow wave grows a lot.
MixerSound in_mixer_form(const SDL_AudioSpec &form, const Uint8 *wave, Uint32 size) {
    int frequency = 0;
    Uint16 format = 0;
    int channels = 0;
    SDL_AudioCVT conversion;
    if (Mix_QuerySpec(&frequency, &format, &channels) == 0 ||
        SDL_BuildAudioCVT(&conversion, form.format, form.channels, form.freq, format, static_cast<Uint8>(channels),
                          frequency) < 0)
        return {};
    const Uint32 frame = SDL_AUDIO_BITSIZE(form.format) / 8U * form.channels;
    const qint64 whole_frames = size - size % frame;
    const qint64 room = whole_frames * conversion.len_mult;
    if (whole_frames == 0 || room > std::numeric_limits<int>::max() ||
        static_cast<double>(whole_frames) * conversion.len_ratio > static_cast<double>(largest_mixer_sound))
        return {};
    MixerSound sound{Samples(static_cast<Uint8 *>(SDL_malloc(static_cast<size_t>(room))), SDL_free)};
    if (!sound.samples)
        return {};
    conversion.buf = sound.samples.get();
    conversion.len = static_cast<int>(whole_frames);
    SDL_memcpy(conversion.buf, wave, static_cast<size_t>(whole_frames));
    if (SDL_ConvertAudio(&conversion) != 0)
        return {};
    sound.size = static_cast<Uint32>(conversion.len_cvt);
    return sound;
}

MixerSound read_wave(const QByteArray &name) {
    SDL_AudioSpec form;
    Uint8 *wave = nullptr;
    Uint32 size = 0;
    if (!SDL_LoadWAV(name.constData(), &form, &wave, &size))
        return {};
    MixerSound sound = in_mixer_form(form, wave, size);
    SDL_FreeWAV(wave);
    return sound;
}

/// A wave, which is decoded when it is opened.
class Wave final : public Sound {
  public:
    explicit Wave(MixerSound sound)
        : sound_(std::move(sound)), chunk_(Mix_QuickLoad_RAW(sound_.samples.get(), sound_.size)) {}
    ~Wave() override {
        silence();
        Mix_FreeChunk(chunk_);
    }

    bool play() override {
        silence();
        channel_ = Mix_PlayChannel(any_channel, chunk_, 0);
        return channel_ >= 0;
    }

    [[nodiscard]] bool playing() const override { return has_channel() && Mix_Playing(channel_) != 0; }

  private:
    /// A channel that has fallen silent may have been given to another wave.
    [[nodiscard]] bool has_channel() const { return channel_ >= 0 && Mix_GetChunk(channel_) == chunk_; }

    void silence() {
        if (has_channel())
            Mix_HaltChannel(channel_);
        channel_ = -1;
    }

    const MixerSound sound_;
    Mix_Chunk *const chunk_;
    int channel_ = -1;
};

/// A MIDI piece. The mixer plays one at a time.
class Piece final : public Sound {
  public:
    /// `music` is null for a file that cannot be played.
    explicit Piece(Mix_Music *music) : music_(music) {}
    ~Piece() override {
        if (heard_ == this) {
            Mix_HaltMusic();
            heard_ = nullptr;
        }
        Mix_FreeMusic(music_);
    }

    /// The mixer takes other music, too.
    [[nodiscard]] bool is_midi() const { return music_ && Mix_GetMusicType(music_) == MUS_MID; }

    bool play() override {
        heard_ = Mix_PlayMusic(music_, once) == 0 ? this : nullptr;
        return heard_ == this;
    }

    [[nodiscard]] bool playing() const override { return heard_ == this && Mix_PlayingMusic() != 0; }

  private:
    Mix_Music *const music_;
    static inline const Piece *heard_ = nullptr;
};

/// Opens a device, by way of the driver that SDL finds or is told.
bool open_audio() {
    if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0)
        return false;
    // What a file is not in, it is brought into.
    if (Mix_OpenAudio(rate, MIX_DEFAULT_FORMAT, stereo, buffer) == 0)
        return true;
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
    return false;
}

/// Opens a device that nobody hears, which takes as long for a sound as a real one.
bool open_silent_audio() {
    SDL_SetHintWithPriority(SDL_HINT_AUDIODRIVER, "dummy", SDL_HINT_OVERRIDE);
    const bool open = open_audio();
    // The next attempt looks for a real one.
    SDL_ResetHint(SDL_HINT_AUDIODRIVER);
    return open;
}

}  // namespace

std::unique_ptr<SdlPlayer> SdlPlayer::open_device() {
    // The program ends at a signal in its own way.
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    // Under this name the volume control of the desktop shows it.
    SDL_SetHint(SDL_HINT_AUDIO_DEVICE_APP_NAME, "Zimbora");
    snd_lib_error_set_handler(say_nothing);
    const bool silent = !open_audio();
    if (silent && !open_silent_audio())
        return nullptr;
    choose_sound_font();
    Mix_VolumeMusic(music_volume);
    return std::unique_ptr<SdlPlayer>(new SdlPlayer(silent));
}

SdlPlayer::~SdlPlayer() {
    Mix_CloseAudio();
    SDL_QuitSubSystem(SDL_INIT_AUDIO);
}

std::unique_ptr<Sound> SdlPlayer::open(SoundType type, const QString &path) {
    const QByteArray name = QFile::encodeName(path);
    if (QFileInfo(path).size() > (type == SoundType::midi ? largest_piece : largest_wave))
        return nullptr;
    if (type == SoundType::midi) {
        auto piece = std::make_unique<Piece>(Mix_LoadMUS(name.constData()));
        return piece->is_midi() ? std::move(piece) : nullptr;
    }
    MixerSound sound = read_wave(name);
    return sound.samples ? std::make_unique<Wave>(std::move(sound)) : nullptr;
}
