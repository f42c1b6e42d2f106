#pragma once

#include <QString>

/// Formats times for the display. Pure functions for any double.
namespace TimeFormat
{
/// Days, hours, minutes and seconds: "1h 2m 5s", "1d 1h 1m ". Leaves out days, hours and minutes
/// that are zero, from one day on the seconds, and from ten days on the minutes too. Every part but
/// the seconds ends in a blank. Exactly 0 gives the empty text. The parts of a negative time are
/// negative.
[[nodiscard]] QString stringForTime(double seconds);

/// The time of a stopwatch that has not been started: "0s".
[[nodiscard]] QString zero();

/// The milliseconds of the time, truncated, with leading zeros: "000" to "999".
[[nodiscard]] QString msStringForTime(double seconds);

/// A duration as the user has set it: "0h 5m 0s".
[[nodiscard]] QString hmsString(qint32 hours, qint32 minutes, qint32 seconds);
} // namespace TimeFormat
