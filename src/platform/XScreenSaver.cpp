#include "platform/XScreenSaver.h"

#include <QGuiApplication>

#include <memory>
#include <xcb/screensaver.h>

namespace
{
/// Whether the server knows the request. Asking a server for an extension that it lacks would end
/// the connection.
bool canSuspend(xcb_connection_t *connection)
{
    const auto *extension = xcb_get_extension_data(connection, &xcb_screensaver_id);
    if (!extension || !extension->present)
        return false;
    constexpr uint8_t major = 1;
    constexpr uint8_t minor = 1;
    const auto question = xcb_screensaver_query_version(connection, major, minor);
    const std::unique_ptr<xcb_screensaver_query_version_reply_t, decltype(&free)> version(
        xcb_screensaver_query_version_reply(connection, question, nullptr), &free);
    return version &&
           (version->server_major_version > major ||
            (version->server_major_version == major && version->server_minor_version >= minor));
}
} // namespace

void XScreenSaver::suspend(bool suspended)
{
    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!x11 || !x11->connection() || !canSuspend(x11->connection()))
        return;
    xcb_screensaver_suspend(x11->connection(), suspended ? 1 : 0);
    xcb_flush(x11->connection());
}
