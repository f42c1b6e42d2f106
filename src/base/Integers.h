#pragma once

#include <QtGlobal>

#include <cmath>
#include <limits>

/// The number truncated toward zero and limited to the range of a signed 32-bit integer. NaN
/// becomes 0.
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

/// The number wrapped around to a signed 32-bit integer.
[[nodiscard]] constexpr qint32 wrappedToInteger(qint64 number)
{
    return static_cast<qint32>(static_cast<quint32>(static_cast<quint64>(number)));
}
