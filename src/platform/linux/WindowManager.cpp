#include "platform/linux/WindowManager.h"

#include <algorithm>

std::optional<WindowManager> WindowManager::ofDisplay()
{
    xcb_connection_t *connection = X11::connection();
    return connection ? std::optional(WindowManager(connection)) : std::nullopt;
}

WindowManager::WindowManager(xcb_connection_t *connection) :
    _connection(connection), _root(X11::rootOf(connection))
{}

void WindowManager::goToWorkspaceOf(xcb_window_t window) const
{
    constexpr uint32_t everyWorkspace = 0xFFFFFFFF;
    const auto workspace = numbers("_NET_WM_DESKTOP", window, XCB_ATOM_CARDINAL);
    if (workspace.size() == 1 && workspace.front() != everyWorkspace &&
        workspace != numbers("_NET_CURRENT_DESKTOP", _root, XCB_ATOM_CARDINAL))
        send("_NET_CURRENT_DESKTOP", _root, {workspace.front(), XCB_CURRENT_TIME});
}

void WindowManager::activate(xcb_window_t window) const
{
    constexpr uint32_t fromUser = 2;
    send("_NET_ACTIVE_WINDOW", window, {fromUser, XCB_CURRENT_TIME});
}

bool WindowManager::supports(QByteArrayView hint) const
{
    return lists("_NET_SUPPORTED", _root, hint);
}

bool WindowManager::hasState(xcb_window_t window, QByteArrayView state) const
{
    return lists("_NET_WM_STATE", window, state);
}

void WindowManager::setState(xcb_window_t window, QByteArrayView state, bool on) const
{
    constexpr uint32_t fromApplication = 1;
    constexpr uint32_t noSecondState = 0;
    const uint32_t addOrRemove = on ? 1 : 0;
    send("_NET_WM_STATE", window,
         {addOrRemove, X11::atom(_connection, state), noSecondState, fromApplication});
}

std::vector<uint32_t> WindowManager::numbers(QByteArrayView property, xcb_window_t window,
                                             xcb_atom_t type) const
{
    constexpr uint32_t maxLength = 1024;
    const auto question = xcb_get_property(_connection, X11::kNo, window,
                                           X11::atom(_connection, property), type, 0, maxLength);
    const auto answer = X11::owned(xcb_get_property_reply(_connection, question, nullptr));
    if (!answer || answer->format != 32)
        return {};
    const auto *first = static_cast<const uint32_t *>(xcb_get_property_value(answer.get()));
    return {first, first + answer->value_len};
}

bool WindowManager::lists(QByteArrayView property, xcb_window_t window, QByteArrayView name) const
{
    const std::vector<uint32_t> names = numbers(property, window, XCB_ATOM_ATOM);
    return std::ranges::count(names, X11::atom(_connection, name)) > 0;
}

void WindowManager::send(QByteArrayView order, xcb_window_t window,
                         std::array<uint32_t, 5> data) const
{
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = X11::atom(_connection, order);
    std::ranges::copy(data, message.data.data32);
    xcb_send_event(_connection, X11::kNo, _root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char *>(&message));
    xcb_flush(_connection);
}
