#include "platform/top_most.h"

#include <algorithm>
#include <span>

#include "platform/linux/x11.h"

namespace {

/// A window manager stacks the full-screen window that has the focus above all that want to be on top, but a window's
/// own dialogs above it. So while another program's full-screen window is active, our window passes for its dialog.
class X11TopMost final : public TopMost {
  public:
    explicit X11TopMost(x11::Connection connection) : connection_(std::move(connection)) {
        xcb_connection_t *c = connection_.get();
        root_ = x11::root_of(c);
        active_window_ = x11::atom(c, "_NET_ACTIVE_WINDOW");
        state_ = x11::atom(c, "_NET_WM_STATE");
        full_screen_ = x11::atom(c, "_NET_WM_STATE_FULLSCREEN");
    }

    void make(quintptr window) override {
        above_ = XCB_WINDOW_NONE;
        xcb_delete_property(connection_.get(), static_cast<xcb_window_t>(window), XCB_ATOM_WM_TRANSIENT_FOR);
        // Done before the caller goes on: the toolkit speaks to the server on another connection.
        const auto request = xcb_get_input_focus(connection_.get());
        const x11::Owned<xcb_get_input_focus_reply_t> answered(
            xcb_get_input_focus_reply(connection_.get(), request, nullptr));
    }

    void renew(quintptr window) override {
        forget_messages();
        const auto ours = static_cast<xcb_window_t>(window);
        const xcb_window_t active = first_value(root_, active_window_, XCB_ATOM_WINDOW);
        if (active == ours)
            return;
        const xcb_window_t above = covers_the_screen(active) ? active : static_cast<xcb_window_t>(XCB_WINDOW_NONE);
        if (above == above_)
            return;
        above_ = above;
        if (above == XCB_WINDOW_NONE)
            xcb_delete_property(connection_.get(), ours, XCB_ATOM_WM_TRANSIENT_FOR);
        else
            xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, ours, XCB_ATOM_WM_TRANSIENT_FOR,
                                XCB_ATOM_WINDOW, 32, 1, &above);
        xcb_flush(connection_.get());
    }

  private:
    /// Nobody reads what the server tells by itself.
    void forget_messages() {
        while (const x11::Owned<xcb_generic_event_t> message{xcb_poll_for_event(connection_.get())}) {
        }
    }

    using Property = x11::Owned<xcb_get_property_reply_t>;

    [[nodiscard]] Property property(xcb_window_t window, xcb_atom_t name, xcb_atom_t type) const {
        constexpr uint32_t longest = 64;
        const auto request = xcb_get_property(connection_.get(), 0, window, name, type, 0, longest);
        return Property(xcb_get_property_reply(connection_.get(), request, nullptr));
    }

    [[nodiscard]] static std::span<const uint32_t> values(const Property &property) {
        if (!property || property->format != 32)
            return {};
        const void *first = xcb_get_property_value(property.get());
        const auto bytes = static_cast<size_t>(xcb_get_property_value_length(property.get()));
        return {static_cast<const uint32_t *>(first), bytes / sizeof(uint32_t)};
    }

    [[nodiscard]] uint32_t first_value(xcb_window_t window, xcb_atom_t name, xcb_atom_t type) const {
        const Property found = property(window, name, type);
        const auto all = values(found);
        return all.empty() ? 0 : all.front();
    }

    [[nodiscard]] bool covers_the_screen(xcb_window_t window) const {
        if (window == XCB_WINDOW_NONE)
            return false;
        const Property states = property(window, state_, XCB_ATOM_ATOM);
        const auto all = values(states);
        return std::find(all.begin(), all.end(), full_screen_) != all.end();
    }

    x11::Connection connection_;
    xcb_window_t root_ = XCB_WINDOW_NONE;
    xcb_atom_t active_window_ = XCB_ATOM_NONE;
    xcb_atom_t state_ = XCB_ATOM_NONE;
    xcb_atom_t full_screen_ = XCB_ATOM_NONE;
    /// The window whose dialog ours passes for.
    xcb_window_t above_ = XCB_WINDOW_NONE;
};

class NothingToDo final : public TopMost {
  public:
    void make(quintptr) override {}
    void renew(quintptr) override {}
};

}  // namespace

std::unique_ptr<TopMost> make_top_most() {
    if (x11::Connection connection = x11::connect())
        return std::make_unique<X11TopMost>(std::move(connection));
    return std::make_unique<NothingToDo>();
}
