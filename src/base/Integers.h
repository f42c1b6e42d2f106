#pragma once

#include <QtGlobal>

#include <cmath>
#include <limits>

/// The number cut toward zero to a signed 32-bit integer. What is too large becomes the largest,
/// what is too small the smallest; anything that is not a number becomes 0.
[[nodiscard]] inline qint32 cutToInteger(double number)
{
    using Limits = std::numeric_limits<qint32>;
    if (std::isnan(number))
        return 0;
    if (number >= Limits::max())
        return Limits::max();
    if (number <= Limits::min())
        return Limits::min();
    return static_cast<qint32>(number);
}

/// The number as a signed 32-bit integer that has wrapped round.
[[nodiscard]] constexpr qint32 wrappedToInteger(qint64 number)
{
    return static_cast<qint32>(static_cast<quint32>(static_cast<quint64>(number)));
}
