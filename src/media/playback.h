#pragma once

#include <QString>
#include <array>

#include "platform/multimedia_commands.h"
#include "state/global.h"

/// Plays a wave sound and a MIDI piece, one of each at a time: a new one silences the one before it. Nothing waits for
/// the end of a sound, and nothing tells that a file could not be played.
class lejátszó final {
  public:
    /// `eszköz` and `állapot`, whose program folder holds the sound of "*", must outlive this object.
    lejátszó(MultimediaCommands &eszköz, const global::programállapot &állapot);

    /// Plays the wave `fájl`. "" only silences; "*", which becomes its path, is the silence that lies at the text of
    /// the program folder immediately followed by "null.wav".
    void hanglejátszás(QString &fájl);
    void hanglejátszás(const QString &fájl) {
        QString út = fájl;
        hanglejátszás(út);
    }
    /// Stops the wave that is heard.
    void hangot_leállít() { hanglejátszás(QString()); }

    /// Plays the MIDI piece `fájl`; "" only silences.
    void midilejátszás(const QString &fájl);
    /// What the MIDI device says it does, such as "playing" or "paused"; "" when none is open.
    [[nodiscard]] QString midiállapot();

    /// Whether the devices "hang" and "midi" have been opened, with success or not, and not closed since.
    [[nodiscard]] const std::array<bool, 2> &eszköznyitva() const { return eszköznyitva_; }
    /// True from the start of a MIDI piece until the next call of midilejátszás().
    [[nodiscard]] bool zeneszól() const { return zeneszól_; }

  private:
    void küld(const QString &parancs);

    MultimediaCommands &eszköz_;
    const global::programállapot &állapot_;
    std::array<bool, 2> eszköznyitva_{};
    bool zeneszól_ = false;
};
