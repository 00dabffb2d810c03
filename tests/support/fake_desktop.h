#pragma once

#include <optional>

#include "platform/clipboard_watch.h"
#include "platform/top_most.h"

/// What other programs do with the clipboard.
struct FakeClipboard {
    /// Nothing while no text has been seen.
    std::optional<ClipboardText> seen;
    /// Watches that are under way.
    int watches = 0;

    void put(const QString &text) { seen = ClipboardText{text, false}; }
};

class FakeClipboardWatch final : public ClipboardWatch {
  public:
    explicit FakeClipboardWatch(FakeClipboard &clipboard) : clipboard_(clipboard) { ++clipboard_.watches; }
    ~FakeClipboardWatch() override { --clipboard_.watches; }

    FakeClipboardWatch(const FakeClipboardWatch &) = delete;
    FakeClipboardWatch &operator=(const FakeClipboardWatch &) = delete;

    std::optional<ClipboardText> text() override { return clipboard_.seen; }

  private:
    FakeClipboard &clipboard_;
};

/// Notes which windows were to be kept on top.
class FakeTopMost final : public TopMost {
  public:
    int made = 0;
    int renewed = 0;

    void make(quintptr) override { ++made; }
    void renew(quintptr) override { ++renewed; }
};
