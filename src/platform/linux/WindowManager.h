#pragma once

#include "platform/linux/X11.h"

#include <array>
#include <optional>
#include <vector>

/// Sends requests to the window manager of an X display and reads its properties, over the
/// program's connection. Hints and states are named as in the Extended Window Manager Hints.
class WindowManager final
{
public:
    /// The window manager of the program's display; nothing without X11.
    [[nodiscard]] static std::optional<WindowManager> ofDisplay();

    /// Switches to the workspace of the window.
    void goToWorkspaceOf(xcb_window_t window) const;
    /// Activates the window, as if the user had chosen it in a list of windows.
    void activate(xcb_window_t window) const;

    /// Whether the window manager announces that it supports this hint.
    [[nodiscard]] bool supports(QByteArrayView hint) const;
    /// Whether a window is in this state.
    [[nodiscard]] bool hasState(xcb_window_t window, QByteArrayView state) const;
    /// Asks for this state to be added to the window or removed from it.
    void setState(xcb_window_t window, QByteArrayView state, bool on) const;

private:
    explicit WindowManager(xcb_connection_t *connection);

    /// The values of the property; empty if it is missing or of another type.
    [[nodiscard]] std::vector<uint32_t> numbers(QByteArrayView property, xcb_window_t window,
                                                xcb_atom_t type) const;
    [[nodiscard]] bool lists(QByteArrayView property, xcb_window_t window,
                             QByteArrayView name) const;
    void send(QByteArrayView order, xcb_window_t window, std::array<uint32_t, 5> data) const;

    xcb_connection_t *_connection;
    xcb_window_t _root;
};
