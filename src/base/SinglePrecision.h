#pragma once

#include <algorithm>
#include <limits>

/// The number in single precision, limited to the range of a float, infinity included. Without the
/// limit the conversion would be undefined behaviour.
[[nodiscard]] constexpr float toSinglePrecision(double number)
{
    constexpr auto largest = static_cast<double>(std::numeric_limits<float>::max());
    return static_cast<float>(std::clamp(number, -largest, largest));
}
