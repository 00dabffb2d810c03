#include "platform/top_most.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace {

/// A plain window of the system.
class TopMostWindow : public testing::Test {
  protected:
    ~TopMostWindow() override { DestroyWindow(window_); }

    TopMostWindow() = default;
    TopMostWindow(const TopMostWindow &) = delete;
    TopMostWindow &operator=(const TopMostWindow &) = delete;

    [[nodiscard]] RECT place() const {
        RECT now{};
        GetWindowRect(window_, &now);
        return now;
    }

    [[nodiscard]] bool is_top_most() const { return (GetWindowLongW(window_, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0; }

    HWND window_ =
        CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 40, 50, 60, 70, nullptr, nullptr, nullptr, nullptr);
};

TEST_F(TopMostWindow, stands_above_all_others_at_the_top_left_in_its_size) {
    ASSERT_FALSE(is_top_most());

    make_top_most()->make(reinterpret_cast<quintptr>(window_));

    EXPECT_TRUE(is_top_most());
    EXPECT_EQ(place().left, 0);
    EXPECT_EQ(place().top, 0);
    EXPECT_EQ(place().right, 60);
    EXPECT_EQ(place().bottom, 70);
}

TEST_F(TopMostWindow, stays_where_it_is_when_that_is_renewed) {
    const auto top = make_top_most();
    top->make(reinterpret_cast<quintptr>(window_));
    SetWindowPos(window_, nullptr, 40, 50, 0, 0, SWP_NOSIZE | SWP_NOZORDER);

    top->renew(reinterpret_cast<quintptr>(window_));

    EXPECT_TRUE(is_top_most());
    EXPECT_EQ(place().left, 40);
    EXPECT_EQ(place().top, 50);
}

}  // namespace
