#pragma once

#include <QString>
#include <memory>
#include <optional>

/// What was seen on the clipboard.
struct ClipboardText {
    QString text;
    /// It was there when the watch began.
    bool was_there = false;
};

/// Watches the clipboard. Asking never waits for the program that owns it: what that program has not handed over yet is
/// not seen yet.
class ClipboardWatch {
  public:
    virtual ~ClipboardWatch() = default;

    /// The newest short text that has been seen; nothing before the first one. What is no text, longer than a page, or
    /// marked as secret by a password manager is not seen at all.
    [[nodiscard]] virtual std::optional<ClipboardText> text() = 0;
};

/// Begins to watch the system's clipboard, until the object is destroyed. Where the system has none that can be
/// watched, nothing is ever seen. One source a system.
[[nodiscard]] std::unique_ptr<ClipboardWatch> watch_clipboard();
