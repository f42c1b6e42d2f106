#include "rules/DigitRow.h"

#include <QtCore/qnamespace.h>

#include <algorithm>
#include <array>

namespace
{
/// The scan codes of the row, from the left. The key left of 1, where there is one, has a code out
/// of sequence.
constexpr std::array<quint32, 13> kRow{49, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21};

bool isDigit(quint32 symbol)
{
    return symbol >= '0' && symbol <= '9';
}

/// The digit that the layout has on a key.
std::optional<int> ownDigit(const std::vector<quint32> &symbols)
{
    const auto own = std::ranges::find_if(symbols, isDigit);
    return own == symbols.end() ? std::nullopt : std::optional(static_cast<int>(*own - '0'));
}

/// The digit at this position of the row on most layouts.
std::optional<int> usualDigit(quint32 scanCode)
{
    constexpr auto places = 10;
    const auto place = std::ranges::find(kRow, scanCode) - kRow.begin();
    return place < 1 || place > places ? std::nullopt : std::optional(int(place) % places);
}
} // namespace

std::optional<int> DigitRow::digitOfKey(int key)
{
    if (key < Qt::Key_0 || key > Qt::Key_9)
        return {};
    return key - Qt::Key_0;
}

bool DigitRow::contains(quint32 scanCode)
{
    return std::ranges::count(kRow, scanCode) > 0;
}

std::optional<int> DigitRow::digitAt(quint32 scanCode, const SymbolsOf &symbolsOf)
{
    if (const std::optional<int> own = ownDigit(symbolsOf(scanCode)))
        return own;
    const std::optional<int> usual = usualDigit(scanCode);
    const auto isElsewhere = [&](quint32 key) { return ownDigit(symbolsOf(key)) == usual; };
    return usual && std::ranges::none_of(kRow, isElsewhere) ? usual : std::nullopt;
}
