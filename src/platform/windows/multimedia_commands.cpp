#include "platform/multimedia_commands.h"

#include <windows.h>

#include <mmsystem.h>

#include <QDir>
#include <optional>
#include <utility>

namespace {

/// The path of a file as every device can open it: the drivers take a name in the system's own code page, and not more
/// than 127 characters. Another one is given by its short name, where the drive has such names.
QString for_drivers(const QString &path) {
    constexpr qsizetype longest = 127;
    const std::wstring native = QDir::toNativeSeparators(path).toStdWString();
    BOOL lacking = FALSE;
    WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, native.c_str(), -1, nullptr, 0, nullptr, &lacking);
    if (lacking == FALSE && path.size() <= longest)
        return QString::fromStdWString(native);
    wchar_t name[MAX_PATH] = {};
    const DWORD length = GetShortPathNameW(native.c_str(), name, MAX_PATH);
    return length > 0 && length < MAX_PATH ? QString::fromWCharArray(name) : QString::fromStdWString(native);
}

/// `command` with its quoted path as a device wants it. Nothing when a quotation mark stands within
/// the quotation: it is written twice there, which the system would take for two quotations.
std::optional<QString> with_native_path(const QString &command) {
    const qsizetype begin = command.indexOf(u'"');
    if (begin < 0)
        return command;
    const qsizetype end = command.indexOf(u'"', begin + 1);
    // Without its end, the system tells what it thinks of that.
    if (end < 0)
        return command;
    if (command.indexOf(u'"', end + 1) >= 0)
        return std::nullopt;
    return command.left(begin + 1) + for_drivers(command.sliced(begin + 1, end - begin - 1)) + command.mid(end);
}

class SystemCommands final : public MultimediaCommands {
  public:
    MultimediaAnswer send(const QString &command, int answer_length) override {
        const auto native = with_native_path(command);
        if (!native)
            return {MCIERR_FILE_NOT_FOUND, {}};
        const MCIERROR code = mciSendStringW(native->toStdWString().c_str(), answer_length > 0 ? answer_ : nullptr,
                                             answer_length > 0 ? room : 0, nullptr);
        if (code != 0 || answer_length == 0)
            return {code, {}};
        QString text = QString::fromWCharArray(answer_);
        // Some versions of the system would cut the answer off.
        return text.size() < answer_length ? MultimediaAnswer{0, std::move(text)}
                                           : MultimediaAnswer{MCIERR_PARAM_OVERFLOW, {}};
    }

  private:
    /// Longer than any answer of a device.
    static constexpr UINT room = 1024;
    wchar_t answer_[room] = {};
};

}  // namespace

std::unique_ptr<MultimediaCommands> make_multimedia_commands() {
    return std::make_unique<SystemCommands>();
}
