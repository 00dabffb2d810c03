#include "platform/information_tool.h"

#include <windows.h>

#include <shellapi.h>

#include <vector>

#include "platform/files.h"
#include "platform/windows/information_tool_path.h"

using namespace Qt::StringLiterals;

namespace {

constexpr const wchar_t *tool_key = L"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO";
constexpr const wchar_t *folders_key = L"SOFTWARE\\Microsoft\\Shared Tools Location";

/// The calling convention of the system's functions says that an answer above this is no failure.
constexpr INT_PTR greatest_failure = 32;

}  // namespace

std::optional<QString> machine_registry_text(const wchar_t *key, const wchar_t *name) {
    DWORD number = 0;
    DWORD size = sizeof number;
    if (RegGetValueW(HKEY_LOCAL_MACHINE, key, name, RRF_RT_REG_DWORD, nullptr, &number, &size) == ERROR_SUCCESS)
        return u"&h"_s + QString::number(number, 16).toUpper();
    // Both kinds of text; variables of the environment are put in.
    constexpr DWORD texts = RRF_RT_REG_SZ;
    if (RegGetValueW(HKEY_LOCAL_MACHINE, key, name, texts, nullptr, nullptr, &size) != ERROR_SUCCESS)
        return std::nullopt;
    std::vector<wchar_t> text(size / sizeof(wchar_t) + 1);
    if (RegGetValueW(HKEY_LOCAL_MACHINE, key, name, texts, nullptr, text.data(), &size) != ERROR_SUCCESS)
        return std::nullopt;
    return QString::fromWCharArray(text.data());
}

std::optional<QString> information_tool_path() {
    if (auto path = machine_registry_text(tool_key, L"PATH"))
        return path;
    const auto folder = machine_registry_text(folders_key, L"MSINFO");
    if (!folder)
        return std::nullopt;
    const QString path = *folder + u"\\MSINFO32.EXE"_s;
    return files::exists(path) ? std::optional(path) : std::nullopt;
}

InformationTool start_information_tool() {
    const auto path = information_tool_path();
    if (!path)
        return InformationTool::unavailable;
    const HINSTANCE answer =
        ShellExecuteW(nullptr, L"open", path->toStdWString().c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    return reinterpret_cast<INT_PTR>(answer) > greatest_failure ? InformationTool::started
                                                                : InformationTool::unavailable;
}
