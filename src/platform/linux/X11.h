#pragma once

#include <QByteArrayView>

#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

/// Helpers for requests to the X server.
namespace X11
{
/// False, as the protocol encodes it.
inline constexpr uint8_t kNo = 0;

/// The program's connection; null without X11.
[[nodiscard]] xcb_connection_t *connection();

[[nodiscard]] xcb_window_t rootOf(xcb_connection_t *connection);

/// The server's number for a name. Waits for the server.
[[nodiscard]] xcb_atom_t atom(xcb_connection_t *connection, QByteArrayView name);

/// Owns a reply of the server and frees it; null when the server gave none.
template<class Reply> [[nodiscard]] std::unique_ptr<Reply, decltype(&free)> owned(Reply *reply)
{
    return {reply, &free};
}
} // namespace X11
