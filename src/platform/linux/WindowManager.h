#pragma once

#include "platform/linux/X11.h"

#include <array>
#include <optional>
#include <vector>

/// The window manager of an X display: what is said to it, and asked of it, over the program's
/// connection. Names are those of the convention between window managers and programs.
class WindowManager final
{
public:
    /// That of the program's display; nothing away from X.
    [[nodiscard]] static std::optional<WindowManager> ofDisplay();

    /// Turns to the workspace of the window.
    void goToWorkspaceOf(xcb_window_t window) const;
    /// Makes it the active window, as if the user had chosen it in a list of windows.
    void activate(xcb_window_t window) const;

    /// Whether it says that it knows this hint.
    [[nodiscard]] bool supports(QByteArrayView hint) const;
    /// Whether a window is in this state.
    [[nodiscard]] bool hasState(xcb_window_t window, QByteArrayView state) const;
    /// Asks for a window to be brought into this state, or out of it.
    void setState(xcb_window_t window, QByteArrayView state, bool on) const;

private:
    explicit WindowManager(xcb_connection_t *connection);

    /// What such a property holds; nothing where it is missing or of another type.
    [[nodiscard]] std::vector<uint32_t> numbers(QByteArrayView property, xcb_window_t window,
                                                xcb_atom_t type) const;
    [[nodiscard]] bool lists(QByteArrayView property, xcb_window_t window,
                             QByteArrayView name) const;
    void send(QByteArrayView order, xcb_window_t window, std::array<uint32_t, 5> data) const;

    xcb_connection_t *_connection;
    xcb_window_t _root;
};
