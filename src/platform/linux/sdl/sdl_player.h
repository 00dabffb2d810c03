#pragma once

#include "platform/linux/sound_player.h"

/// Plays with SDL_mixer: waves as they are, MIDI with FluidSynth and an installed General MIDI sound font, at 60 % so
/// that waves are heard above it. One object a process.
class SdlPlayer final : public SoundPlayer {
  public:
    /// Opens the sound device, or one that is silent where there is none; null when the library fails.
    [[nodiscard]] static std::unique_ptr<SdlPlayer> open_device();
    ~SdlPlayer() override;

    [[nodiscard]] std::unique_ptr<Sound> open(SoundType type, const QString &path) override;

    [[nodiscard]] bool silent() const override { return silent_; }

  private:
    explicit SdlPlayer(bool silent) : silent_(silent) {}

    const bool silent_;
};
