#pragma once

#include <QString>

/// How far away a moment is, in words. Pure functions.
namespace TimeDistance
{
/// “in 4 h 12 min”: the two largest units, cut, the smaller one left out where it is zero; “in 40
/// s” under a minute, and “now” for what is not in the future. Any number will do.
[[nodiscard]] QString text(qint64 seconds);
} // namespace TimeDistance
