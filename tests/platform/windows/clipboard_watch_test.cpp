#include "platform/clipboard_watch.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <QElapsedTimer>
#include <QStringList>
#include <cstring>
#include <functional>

#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

void put(UINT format, const void *bytes, size_t size) {
    void *memory = GlobalAlloc(GMEM_MOVEABLE, size);
    std::memcpy(GlobalLock(memory), bytes, size);
    GlobalUnlock(memory);
    SetClipboardData(format, memory);
}

/// Opens the clipboard as soon as nobody else has it open.
void open_clipboard() {
    QElapsedTimer timer;
    timer.start();
    while (OpenClipboard(nullptr) == 0) {
        ASSERT_LT(timer.elapsed(), 10000);
        Sleep(1);
    }
    EmptyClipboard();
}

void copy(const QString &text, bool secret = false) {
    open_clipboard();
    const std::wstring characters = text.toStdWString();
    // The mark comes first: who watches may look as soon as the text is there.
    if (secret)
        put(RegisterClipboardFormatW(L"ExcludeClipboardContentFromMonitorProcessing"), "1", 1);
    put(CF_UNICODETEXT, characters.c_str(), (characters.size() + 1) * sizeof(wchar_t));
    CloseClipboard();
}

bool within_ten_seconds(const std::function<bool()> &condition) {
    QElapsedTimer timer;
    timer.start();
    while (!condition()) {
        if (timer.elapsed() > 10000)
            return false;
        Sleep(1);
    }
    return true;
}

bool sees(ClipboardWatch &watch, const QString &text) {
    return within_ten_seconds([&] { return watch.text() && watch.text()->text == text; });
}

TEST(SystemClipboard, is_seen_with_what_was_there_marked) {
    copy(u"régi"_s);

    const auto watch = watch_clipboard();

    ASSERT_TRUE(sees(*watch, u"régi"_s));
    EXPECT_TRUE(watch->text()->was_there);
}

TEST(SystemClipboard, is_seen_when_it_changes) {
    const auto watch = watch_clipboard();
    copy(u"szőlő"_s);
    ASSERT_TRUE(sees(*watch, u"szőlő"_s));
    EXPECT_FALSE(watch->text()->was_there);

    copy(u"alma"_s);

    EXPECT_TRUE(sees(*watch, u"alma"_s));
}

TEST(SystemClipboard, is_not_seen_when_it_is_secret_or_longer_than_a_page) {
    const auto watch = watch_clipboard();
    copy(u"titok"_s, true);
    copy(QString(5000, u'x'));
    // Both have been passed over when what comes after them is there, and neither was seen before it.
    QStringList seen;
    copy(u"utána"_s);

    EXPECT_TRUE(within_ten_seconds([&] {
        if (const auto text = watch->text(); text && !seen.contains(text->text))
            seen.append(text->text);
        return seen.contains(u"utána"_s);
    }));
    EXPECT_FALSE(seen.contains(u"titok"_s));
    EXPECT_EQ(seen.filter(u"xxxx"_s), QStringList());
}

}  // namespace
