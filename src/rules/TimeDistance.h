#pragma once

#include <QString>

/// How far away a moment is, in words. Pure functions.
namespace TimeDistance
{
/// “in 4 h 12 min”: the two largest units, truncated, without the smaller one if it is zero; “in 40
/// s” under a minute, and “now” unless the moment is in the future. Any number is allowed.
[[nodiscard]] QString text(qint64 seconds);
} // namespace TimeDistance
