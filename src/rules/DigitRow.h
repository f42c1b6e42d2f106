#pragma once

#include <QtGlobal>

#include <functional>
#include <optional>
#include <vector>

/// Which digit a press means on keyboards where a digit takes Shift, or where Shift makes something
/// else of it. Pure functions.
namespace DigitRow
{
/// The digit that the key says as it is pressed, of type Qt::Key: from the row or the keypad.
[[nodiscard]] std::optional<int> digitOfKey(int key);

/// Whether the key of this number, as X11 and Wayland count keys, is in the uppermost row of
/// characters, which holds the digits on every layout.
[[nodiscard]] bool contains(quint32 keyNumber);

/// Gives what the layout has on a key, alone and with Shift, as X11 calls it; nothing where that is
/// unknown.
using SymbolsOf = std::function<std::vector<quint32>(quint32 keyNumber)>;

/// The digit of a key of the row: the one that the layout has on that key, alone or with Shift; if
/// it has none, the one that is usual at that place, unless the layout has that one on another key
/// of the row. Nothing for a key that stands for no digit.
[[nodiscard]] std::optional<int> digitAt(quint32 keyNumber, const SymbolsOf &symbolsOf);
} // namespace DigitRow
