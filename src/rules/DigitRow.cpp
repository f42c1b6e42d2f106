#include "rules/DigitRow.h"

#include <QtCore/qnamespace.h>

#include <algorithm>
#include <array>

namespace
{
/// The numbers of the keys of the row, from the left. Where there is one more at the left end, it
/// has a number far off.
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

/// The digit that is usual at the place of a key.
std::optional<int> usualDigit(quint32 keyNumber)
{
    constexpr auto places = 10;
    const auto place = std::ranges::find(kRow, keyNumber) - kRow.begin();
    return place < 1 || place > places ? std::nullopt : std::optional(int(place) % places);
}
} // namespace

std::optional<int> DigitRow::digitOfKey(int key)
{
    if (key < Qt::Key_0 || key > Qt::Key_9)
        return {};
    return key - Qt::Key_0;
}

bool DigitRow::contains(quint32 keyNumber)
{
    return std::ranges::count(kRow, keyNumber) > 0;
}

std::optional<int> DigitRow::digitAt(quint32 keyNumber, const SymbolsOf &symbolsOf)
{
    if (const std::optional<int> own = ownDigit(symbolsOf(keyNumber)))
        return own;
    const std::optional<int> usual = usualDigit(keyNumber);
    const auto isElsewhere = [&](quint32 key) { return ownDigit(symbolsOf(key)) == usual; };
    return usual && std::ranges::none_of(kRow, isElsewhere) ? usual : std::nullopt;
}
