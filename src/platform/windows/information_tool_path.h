#pragma once

#include <QString>
#include <optional>

/// A value of the registry under HKEY_LOCAL_MACHINE as text: a text with its environment variables put in, a number as
/// "&h" and its hexadecimal digits. Nothing when it is missing or of another type.
[[nodiscard]] std::optional<QString> machine_registry_text(const wchar_t *key, const wchar_t *name);

/// The path of the system information tool: what the registry's "PATH" under "SOFTWARE\Microsoft\Shared Tools\MSINFO"
/// says; without that, the file "MSINFO32.EXE" in the folder that "MSINFO" under "SOFTWARE\Microsoft\Shared Tools
/// Location" names, if it is there. Nothing when there is neither.
[[nodiscard]] std::optional<QString> information_tool_path();
