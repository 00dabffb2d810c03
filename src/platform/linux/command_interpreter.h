#pragma once

#include <QHash>
#include <QStringList>
#include <chrono>
#include <functional>
#include <memory>

#include "platform/linux/sound_player.h"
#include "platform/multimedia_commands.h"

/// The numbers of failures (mmsystem.h of the Windows API).
namespace mci_error {

inline constexpr quint32 unrecognized_keyword = 259;
inline constexpr quint32 unrecognized_command = 261;
inline constexpr quint32 invalid_device_name = 263;
inline constexpr quint32 missing_command_string = 267;
inline constexpr quint32 answer_too_long = 268;
inline constexpr quint32 missing_parameter = 273;
inline constexpr quint32 file_not_found = 275;
inline constexpr quint32 device_not_ready = 276;
inline constexpr quint32 device_type_required = 287;
inline constexpr quint32 duplicate_alias = 289;
inline constexpr quint32 missing_device_name = 292;
inline constexpr quint32 no_closing_quote = 294;
inline constexpr quint32 invalid_file = 296;
inline constexpr quint32 device_not_installed = 306;

}  // namespace mci_error

/// Carries out multimedia commands with a sound player, which is made when the first file is opened. On a machine that
/// had no sound device it is made anew when nothing is open, in case there is one now; not before some time has passed,
/// because every attempt takes a while.
class CommandInterpreter final : public MultimediaCommands {
  public:
    using Clock = std::function<std::chrono::steady_clock::time_point()>;

    static constexpr std::chrono::seconds pause_without_device{30};

    explicit CommandInterpreter(SoundPlayerFactory make_player, Clock now = std::chrono::steady_clock::now);

    MultimediaAnswer send(const QString &command, int answer_length) override;

  private:
    MultimediaAnswer open(const QStringList &words);
    MultimediaAnswer play(const QString &name);
    MultimediaAnswer close(const QString &name);
    [[nodiscard]] MultimediaAnswer status(const QString &name, const QStringList &items) const;
    [[nodiscard]] bool has_player();

    SoundPlayerFactory make_player_;
    Clock now_;
    std::chrono::steady_clock::time_point next_attempt_{};
    std::unique_ptr<SoundPlayer> player_;
    /// The open files by their aliases; gone before the player.
    QHash<QString, std::shared_ptr<Sound>> open_;
};
