#include "platform/display_system.h"

#include <gtest/gtest.h>

#include <QByteArray>
#include <array>
#include <utility>

#include "support/printing.h"

namespace {

/// The environment of a session, which is put back when the test ends.
class DisplaySystem : public testing::Test {
  protected:
    DisplaySystem() {
        for (auto &[name, value] : before_)
            value = qgetenv(name);
        session(nullptr, nullptr, nullptr);
    }

    ~DisplaySystem() override {
        for (const auto &[name, value] : before_)
            set(name, value.isNull() ? nullptr : value.constData());
    }

    DisplaySystem(const DisplaySystem &) = delete;
    DisplaySystem &operator=(const DisplaySystem &) = delete;

    /// Null for a variable that is not set.
    static void session(const char *wayland, const char *x11, const char *chosen) {
        set("WAYLAND_DISPLAY", wayland);
        set("DISPLAY", x11);
        set("QT_QPA_PLATFORM", chosen);
    }

    [[nodiscard]] static QByteArray chosen() {
        choose_display_system();
        return qEnvironmentVariableIsSet("QT_QPA_PLATFORM") ? qgetenv("QT_QPA_PLATFORM") : QByteArray("(none)");
    }

  private:
    static void set(const char *name, const char *value) {
        if (value)
            qputenv(name, value);
        else
            qunsetenv(name);
    }

    std::array<std::pair<const char *, QByteArray>, 3> before_{
        {{"WAYLAND_DISPLAY", {}}, {"DISPLAY", {}}, {"QT_QPA_PLATFORM", {}}}};
};

TEST_F(DisplaySystem, is_x11_where_a_wayland_desktop_offers_it_too) {
    session("wayland-0", ":0", nullptr);

    EXPECT_EQ(chosen(), "xcb");
}

TEST_F(DisplaySystem, is_left_to_the_toolkit_on_a_wayland_desktop_without_x11) {
    session("wayland-0", nullptr, nullptr);

    EXPECT_EQ(chosen(), "(none)");
}

TEST_F(DisplaySystem, is_left_to_the_toolkit_where_there_is_no_wayland) {
    session(nullptr, ":0", nullptr);

    EXPECT_EQ(chosen(), "(none)");
}

TEST_F(DisplaySystem, is_what_the_user_has_chosen) {
    session("wayland-0", ":0", "wayland");
    EXPECT_EQ(chosen(), "wayland");

    session("wayland-0", ":0", "offscreen");
    EXPECT_EQ(chosen(), "offscreen");
}

}  // namespace
