#include "platform/WindowOrder.h"

#include <QWidget>

#ifdef WUFFER_XCB
#include "platform/X11.h"

#include <optional>

namespace
{
/// What is said to the window manager, and asked of it, over the program's connection.
class WindowManager final
{
public:
    explicit WindowManager(xcb_connection_t *connection) :
        _connection(connection), _root(X11::rootOf(connection))
    {}

    /// Turns to the workspace of the window.
    void goToWorkspaceOf(xcb_window_t window) const;
    /// Makes it the active window, as if the user had chosen it in a list of windows.
    void activate(xcb_window_t window) const;

private:
    [[nodiscard]] std::optional<uint32_t> number(QByteArrayView property,
                                                 xcb_window_t window) const;
    void send(QByteArrayView order, xcb_window_t window, uint32_t first, uint32_t second) const;

    xcb_connection_t *_connection;
    xcb_window_t _root;
};

void WindowManager::goToWorkspaceOf(xcb_window_t window) const
{
    constexpr uint32_t everyWorkspace = 0xFFFFFFFF;
    const auto its = number("_NET_WM_DESKTOP", window);
    if (its && its != everyWorkspace && its != number("_NET_CURRENT_DESKTOP", _root))
        send("_NET_CURRENT_DESKTOP", _root, *its, XCB_CURRENT_TIME);
}

void WindowManager::activate(xcb_window_t window) const
{
    constexpr uint32_t onBehalfOfTheUser = 2;
    send("_NET_ACTIVE_WINDOW", window, onBehalfOfTheUser, XCB_CURRENT_TIME);
}

std::optional<uint32_t> WindowManager::number(QByteArrayView property, xcb_window_t window) const
{
    const auto question = xcb_get_property(
        _connection, X11::kNo, window, X11::atom(_connection, property), XCB_ATOM_CARDINAL, 0, 1);
    const auto answer = X11::owned(xcb_get_property_reply(_connection, question, nullptr));
    if (!answer || answer->format != 32 || answer->value_len != 1)
        return {};
    return *static_cast<const uint32_t *>(xcb_get_property_value(answer.get()));
}

void WindowManager::send(QByteArrayView order, xcb_window_t window, uint32_t first,
                         uint32_t second) const
{
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = X11::atom(_connection, order);
    message.data.data32[0] = first;
    message.data.data32[1] = second;
    xcb_send_event(_connection, X11::kNo, _root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char *>(&message));
    xcb_flush(_connection);
}
} // namespace

/// For a window that only asks for itself a window manager draws attention to it and no more while
/// the user is at something else: of a press in the panel it knows nothing.
static void askWindowManagerFor(const QWidget &window)
{
    xcb_connection_t *connection = X11::connection();
    if (!connection)
        return;
    const WindowManager manager(connection);
    const auto number = static_cast<xcb_window_t>(window.winId());
    manager.goToWorkspaceOf(number);
    manager.activate(number);
}
#else
static void askWindowManagerFor(const QWidget & /*window*/) {}
#endif

void bringToFront(QWidget &window)
{
    const bool wasShown = window.isVisible();
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
    // A window that is new comes up in front by itself.
    if (wasShown)
        askWindowManagerFor(window);
}
