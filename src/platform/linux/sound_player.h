#pragma once

#include <QString>
#include <functional>
#include <memory>

enum class SoundType { wave, midi };

/// A file that was opened to be heard. It falls silent when it is destroyed.
class Sound {
  public:
    virtual ~Sound() = default;

    /// Plays it from the beginning and returns at once; false when that fails.
    virtual bool play() = 0;
    [[nodiscard]] virtual bool playing() const = 0;
};

/// What plays sounds, of which a wave and a MIDI piece are heard together. On a machine without a sound device it plays
/// them, too, for as long as they last, and nobody hears them. It outlives the sounds that it opened.
class SoundPlayer {
  public:
    virtual ~SoundPlayer() = default;

    /// Null for a file that cannot be read or is none of that type.
    [[nodiscard]] virtual std::unique_ptr<Sound> open(SoundType type, const QString &path) = 0;
    /// True when there is no device that could be heard.
    [[nodiscard]] virtual bool silent() const = 0;
};

/// Makes a player with the machine's sound device, as it is now; null when nothing can be played at all.
using SoundPlayerFactory = std::function<std::unique_ptr<SoundPlayer>()>;

/// Makes a player with SDL_mixer, which is a library of its own, loaded at the first call: it brings some forty others
/// with it.
[[nodiscard]] std::unique_ptr<SoundPlayer> make_sdl_player();

/// Under this name the library of the player has its maker, of type SoundPlayerMaker.
inline constexpr const char *sound_player_maker = "zimbora_make_sound_player";
extern "C" {
using SoundPlayerMaker = SoundPlayer *(*)();
}
