#pragma once

#include <xcb/xcb.h>

#include <QByteArrayView>
#include <cstdlib>
#include <memory>

/// The parts of the X11 protocol that several sources use.
namespace x11 {

/// What the server's answers and events are freed with.
struct Free {
    void operator()(void *allocated) const { std::free(allocated); }
};
template <class Message>
using Owned = std::unique_ptr<Message, Free>;

struct Disconnect {
    void operator()(xcb_connection_t *connection) const { xcb_disconnect(connection); }
};
/// A connection of its own to the display of the environment; null when there is none.
using Connection = std::unique_ptr<xcb_connection_t, Disconnect>;
[[nodiscard]] inline Connection connect() {
    Connection connection(xcb_connect(nullptr, nullptr));
    if (xcb_connection_has_error(connection.get()) != 0)
        return nullptr;
    return connection;
}

[[nodiscard]] inline xcb_window_t root_of(xcb_connection_t *connection) {
    return xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
}

/// The number of a name; XCB_ATOM_NONE when the connection has gone.
[[nodiscard]] inline xcb_atom_t atom(xcb_connection_t *connection, QByteArrayView name) {
    const auto request = xcb_intern_atom(connection, 0, static_cast<uint16_t>(name.size()), name.data());
    const Owned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, request, nullptr));
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

}  // namespace x11
