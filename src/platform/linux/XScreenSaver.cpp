#include "platform/linux/XScreenSaver.h"

#include "platform/linux/X11.h"

#include <xcb/screensaver.h>

namespace
{
/// Whether the server supports the request. A request of an extension that the server lacks would
/// end the connection.
bool canSuspend(xcb_connection_t *connection)
{
    const xcb_query_extension_reply_t *extension =
        xcb_get_extension_data(connection, &xcb_screensaver_id);
    if (!extension || extension->present == 0)
        return false;
    constexpr uint8_t major = 1;
    constexpr uint8_t minor = 1;
    const auto question = xcb_screensaver_query_version(connection, major, minor);
    const auto version =
        X11::owned(xcb_screensaver_query_version_reply(connection, question, nullptr));
    return version != nullptr &&
           (version->server_major_version > major ||
            (version->server_major_version == major && version->server_minor_version >= minor));
}
} // namespace

void XScreenSaver::suspend(bool suspended)
{
    xcb_connection_t *connection = X11::connection();
    if (!connection || !canSuspend(connection))
        return;
    xcb_screensaver_suspend(connection, suspended ? 1 : 0);
    xcb_flush(connection);
}
