#pragma once

#include <QtGlobal>

#include <optional>
#include <vector>

/// Which digit a press means on keyboards where a digit takes Shift, or where Shift makes something
/// else of it. Pure functions.
namespace DigitRow
{
/// The digit that the key says as it is pressed, of type Qt::Key: from the row or the keypad.
[[nodiscard]] std::optional<int> digitOfKey(int key);

/// Whether the key of this number, as X11 and Wayland count keys, is in the row of the digits.
[[nodiscard]] bool contains(quint32 keyNumber);

/// The digit of a key of the row: the one that the layout has on that key, alone or with Shift; if
/// it has none, the one that is usual at that place. The symbols are what X11 calls them, and may
/// be none where they are unknown.
[[nodiscard]] int digitAt(quint32 keyNumber, const std::vector<quint32> &symbols);
} // namespace DigitRow
