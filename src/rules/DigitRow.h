#pragma once

#include <QtGlobal>

#include <functional>
#include <optional>
#include <vector>

/// Which digit a key press means on layouts where typing a digit needs Shift, or where Shift
/// changes a digit into another character. Pure functions.
namespace DigitRow
{
/// The digit of this Qt::Key, from the row or the keypad; nothing for other keys.
[[nodiscard]] std::optional<int> digitOfKey(int key);

/// Whether the key with this native scan code (X11 and Wayland) is in the top row of characters,
/// which has the digits on every layout.
[[nodiscard]] bool contains(quint32 scanCode);

/// Returns the X11 keysyms that the layout has on a key, without and with Shift; empty if they are
/// unknown.
using SymbolsOf = std::function<std::vector<quint32>(quint32 scanCode)>;

/// The digit of a key in the row: the one that the layout has on the key, without or with Shift. If
/// it has none, the digit at this position on most layouts, unless the layout has that digit on
/// another key of the row. Otherwise nothing.
[[nodiscard]] std::optional<int> digitAt(quint32 scanCode, const SymbolsOf &symbolsOf);
} // namespace DigitRow
