#include "platform/clipboard_watch.h"

#include <windows.h>

#include <array>
#include <mutex>
#include <thread>

// A program that copies may leave the making of the text until somebody asks for it, and the asking then waits for that
// program. So a thread asks that nobody waits for, not even at the end of the watch.

namespace {

/// What is longer than this is no word.
constexpr SIZE_T longest = 4096;  // bytes

struct Seen {
    std::mutex mutex;
    std::optional<ClipboardText> text;
    /// The window that the system tells of changes; null until it is made.
    HWND window = nullptr;
    bool ended = false;
};

bool is_secret() {
    static const std::array<UINT, 2> marks{RegisterClipboardFormatW(L"ExcludeClipboardContentFromMonitorProcessing"),
                                           RegisterClipboardFormatW(L"Clipboard Viewer Ignore")};
    for (const UINT mark : marks) {
        if (IsClipboardFormatAvailable(mark) != 0)
            return true;
    }
    return false;
}

/// The text of the clipboard, which must be open.
std::optional<QString> text_of_clipboard() {
    if (is_secret() || IsClipboardFormatAvailable(CF_UNICODETEXT) == 0)
        return std::nullopt;
    void *memory = GetClipboardData(CF_UNICODETEXT);
    if (memory == nullptr || GlobalSize(memory) > longest)
        return std::nullopt;
    const auto *characters = static_cast<const wchar_t *>(GlobalLock(memory));
    if (characters == nullptr)
        return std::nullopt;
    const auto room = static_cast<qsizetype>(GlobalSize(memory) / sizeof(wchar_t));
    QString text = QString::fromWCharArray(characters, room);
    GlobalUnlock(memory);
    // The text ends at its zero, the memory often later.
    if (const qsizetype end = text.indexOf(QChar::Null); end >= 0)
        text.truncate(end);
    return text;
}

std::optional<QString> read_clipboard(HWND window) {
    // Another program that watches may have it open just now.
    constexpr int attempts = 20;
    constexpr DWORD pause = 10;  // milliseconds
    for (int i = 0; i < attempts; ++i) {
        if (OpenClipboard(window) != 0) {
            auto text = text_of_clipboard();
            CloseClipboard();
            return text;
        }
        Sleep(pause);
    }
    return std::nullopt;
}

void look(HWND window, Seen &seen, DWORD number_at_start) {
    const bool was_there = GetClipboardSequenceNumber() == number_at_start;
    auto text = read_clipboard(window);
    if (!text)
        return;
    const std::lock_guard lock(seen.mutex);
    seen.text = ClipboardText{*std::move(text), was_there};
}

void run(const std::shared_ptr<Seen> &seen, DWORD number_at_start) {
    HWND window = CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    if (window == nullptr)
        return;
    // The messages of a listener are sent, not posted: the window's own procedure gets them.
    SetWindowLongPtrW(window, GWLP_WNDPROC,
                      reinterpret_cast<LONG_PTR>(+[](HWND w, UINT m, WPARAM p, LPARAM q) -> LRESULT {
                          if (m == WM_CLIPBOARDUPDATE)
                              PostThreadMessageW(GetCurrentThreadId(), WM_APP, 0, 0);
                          return m == WM_CLIPBOARDUPDATE ? 0 : DefWindowProcW(w, m, p, q);
                      }));
    AddClipboardFormatListener(window);
    bool ended = false;
    {
        const std::lock_guard lock(seen->mutex);
        seen->window = window;
        ended = seen->ended;
    }
    if (!ended)
        look(window, *seen, number_at_start);
    MSG message;
    while (!ended && GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (message.message == WM_CLOSE)
            break;
        if (message.message == WM_APP)
            look(window, *seen, number_at_start);
        else
            DispatchMessageW(&message);
    }
    RemoveClipboardFormatListener(window);
    DestroyWindow(window);
}

class SystemClipboardWatch final : public ClipboardWatch {
  public:
    SystemClipboardWatch() { std::thread(run, seen_, GetClipboardSequenceNumber()).detach(); }

    ~SystemClipboardWatch() override {
        const std::lock_guard lock(seen_->mutex);
        seen_->ended = true;
        if (seen_->window != nullptr)
            PostMessageW(seen_->window, WM_CLOSE, 0, 0);
    }

    SystemClipboardWatch(const SystemClipboardWatch &) = delete;
    SystemClipboardWatch &operator=(const SystemClipboardWatch &) = delete;

    std::optional<ClipboardText> text() override {
        const std::lock_guard lock(seen_->mutex);
        return seen_->text;
    }

  private:
    std::shared_ptr<Seen> seen_ = std::make_shared<Seen>();
};

}  // namespace

std::unique_ptr<ClipboardWatch> watch_clipboard() {
    return std::make_unique<SystemClipboardWatch>();
}
