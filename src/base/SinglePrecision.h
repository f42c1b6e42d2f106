#pragma once

#include <algorithm>
#include <limits>

/// The number in single precision. What is too large, infinity included, becomes the largest
/// float; leaving that to the language would be undefined.
[[nodiscard]] constexpr float toSinglePrecision(double number)
{
    constexpr double largest = std::numeric_limits<float>::max();
    return static_cast<float>(std::clamp(number, -largest, largest));
}
