#include "platform/DigitRow.h"

#include <QtCore/qnamespace.h>

#include <algorithm>

namespace
{
/// The number of the key of 1, with which the row begins; that of 0 is its tenth.
constexpr quint32 kFirstKey = 10;
constexpr quint32 kKeys = 10;

bool isDigit(quint32 symbol)
{
    return symbol >= '0' && symbol <= '9';
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
    return keyNumber >= kFirstKey && keyNumber < kFirstKey + kKeys;
}

int DigitRow::digitAt(quint32 keyNumber, const std::vector<quint32> &symbols)
{
    Q_ASSERT(contains(keyNumber));
    const auto own = std::ranges::find_if(symbols, isDigit);
    if (own != symbols.end())
        return static_cast<int>(*own - '0');
    return static_cast<int>((keyNumber - kFirstKey + 1) % kKeys);
}
