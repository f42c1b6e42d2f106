#pragma once

#include <QByteArrayView>

#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

/// What everything that speaks to the X server needs.
namespace X11
{
/// A truth value of the protocol.
inline constexpr uint8_t kNo = 0;

/// The program's connection; null away from X.
[[nodiscard]] xcb_connection_t *connection();

[[nodiscard]] xcb_window_t rootOf(xcb_connection_t *connection);

/// The number that the server has for a name; asks it.
[[nodiscard]] xcb_atom_t atom(xcb_connection_t *connection, QByteArrayView name);

/// An answer of the server, which is freed with its scope; null when the server gave none.
template<class Reply> [[nodiscard]] std::unique_ptr<Reply, decltype(&free)> owned(Reply *reply)
{
    return {reply, &free};
}
} // namespace X11
