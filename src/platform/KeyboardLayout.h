#pragma once

#include <QtGlobal>

#include <vector>

class QKeyEvent;

/// Reads the keyboard layout in use.
namespace KeyboardLayout
{
/// The keycode of X11 and Wayland; 0 on a system without such keycodes.
[[nodiscard]] quint32 numberOf(const QKeyEvent &press);

/// The X11 keysyms of a key, first without and then with Shift. The state is that of the keyboard
/// in a key event; it holds the number of the active layout. Empty where the layout cannot be read,
/// as under Wayland.
[[nodiscard]] std::vector<quint32> symbolsOf(quint32 keyNumber, quint32 state);
} // namespace KeyboardLayout
