#include "platform/linux/StartupNotification.h"

#include "platform/linux/X11.h"

#include <QString>

#include <algorithm>

namespace
{
/// The message of the protocol: the id in quotes, with quotes and backslashes escaped.
QByteArray removal(const QString &id)
{
    QByteArray quoted = id.toUtf8();
    quoted.replace('\\', R"(\\)").replace('"', R"(\")");
    return "remove: ID=\"" + quoted + '"';
}

/// Sends the text to all clients that listen on the root window, in pieces of the size of an event.
/// The last piece holds the terminating zero.
void broadcast(xcb_connection_t *connection, const QByteArray &text)
{
    const xcb_window_t root = X11::rootOf(connection);
    const xcb_window_t sender = xcb_generate_id(connection);
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, sender, root, -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 8;
    message.window = sender;
    message.type = X11::atom(connection, "_NET_STARTUP_INFO_BEGIN");
    const xcb_atom_t more = X11::atom(connection, "_NET_STARTUP_INFO");
    constexpr qsizetype piece = sizeof message.data.data8;
    for (qsizetype sent = 0; sent <= text.size(); sent += piece) {
        std::ranges::fill(message.data.data8, uint8_t(0));
        const QByteArray next = text.mid(sent, piece);
        std::ranges::copy(next, message.data.data8);
        xcb_send_event(connection, X11::kNo, root, XCB_EVENT_MASK_PROPERTY_CHANGE,
                       reinterpret_cast<const char *>(&message));
        message.type = more;
    }
    xcb_destroy_window(connection, sender);
    xcb_flush(connection);
}
} // namespace

void endStartupNotification(const QString &id)
{
    xcb_connection_t *connection = X11::connection();
    if (!id.isEmpty() && connection)
        broadcast(connection, removal(id));
}
