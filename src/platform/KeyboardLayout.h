#pragma once

#include <QtGlobal>

#include <vector>

class QKeyEvent;

/// What the keyboard layout that is in use has on its keys.
namespace KeyboardLayout
{
/// The number of the key, as X11 and Wayland count keys; 0 on a system that counts them otherwise.
[[nodiscard]] quint32 numberOf(const QKeyEvent &press);

/// The symbols of a key, alone and with Shift, as X11 calls them. The state is that of the keyboard
/// in the event of a press, which says which of several layouts is in use. Nothing where that
/// cannot be asked for, as under Wayland.
[[nodiscard]] std::vector<quint32> symbolsOf(quint32 keyNumber, quint32 state);
} // namespace KeyboardLayout
