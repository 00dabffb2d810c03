#pragma once

#include <QString>
#include <QtGlobal>
#include <memory>

/// What a multimedia command led to.
struct MultimediaAnswer {
    /// 0 for a command that was carried out, else one of the MCIERR_ numbers of the Windows API (mmsystem.h).
    quint32 code = 0;
    /// What a command that asks was answered; empty on failure.
    QString text;
};

/// Multimedia command strings, as the Windows API has them (Media Control Interface). Of its commands:
///
///     open "<path>" type waveaudio alias <name>     also "type sequencer" for MIDI files
///     play <name>                                   from the beginning; returns at once
///     status <name> mode                            answers "playing", "paused" or "stopped"
///     close <name>                                  silences what is heard
///
/// Words may be written in small letters or capitals. A quotation mark within the quoted path is written twice, so that
/// no path ends its own quotation. On Windows, where no file name holds one, such a command fails.
class MultimediaCommands {
  public:
    virtual ~MultimediaCommands() = default;

    /// Carries out `command`. An answer that has not fewer than `answer_length` characters is a failure; 0 for commands
    /// that do not ask.
    virtual MultimediaAnswer send(const QString &command, int answer_length) = 0;
};

/// `path` in quotation marks, as a command wants it.
[[nodiscard]] QString quoted_for_command(const QString &path);

/// The commands of this machine. One source a system. No device is opened before the first sound. On a machine
/// without one everything is silent; it may fail with a code, or be played for as long as it lasts.
[[nodiscard]] std::unique_ptr<MultimediaCommands> make_multimedia_commands();
