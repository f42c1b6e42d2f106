#pragma once

#include <QtGlobal>

#include <algorithm>
#include <cmath>
#include <limits>

inline constexpr qint32 kLargestInteger = std::numeric_limits<qint32>::max();
inline constexpr qint32 kSmallestInteger = std::numeric_limits<qint32>::min();

/// The number limited to the range of a signed 32-bit integer, with its fraction. NaN becomes 0.
[[nodiscard]] inline double limitedToIntegers(double number)
{
    return std::isnan(number) ? 0 : std::clamp<double>(number, kSmallestInteger, kLargestInteger);
}

/// The number truncated toward zero and limited to the range of a signed 32-bit integer. NaN
/// becomes 0.
[[nodiscard]] inline qint32 cutToInteger(double number)
{
    return static_cast<qint32>(limitedToIntegers(number));
}

/// The number as a signed 32-bit integer, within the same limits.
[[nodiscard]] constexpr qint32 limitedToInteger(qint64 number)
{
    return static_cast<qint32>(std::clamp<qint64>(number, kSmallestInteger, kLargestInteger));
}

/// The number wrapped around to a signed 32-bit integer.
[[nodiscard]] constexpr qint32 wrappedToInteger(qint64 number)
{
    return static_cast<qint32>(static_cast<quint32>(static_cast<quint64>(number)));
}
