#pragma once

#include <QString>

/// How times show on the display. Pure functions of seconds; any double will do.
namespace TimeFormat
{
/// Days, hours, minutes and seconds, leaving out what is zero and, from a day on, the seconds;
/// from ten days on, the minutes too. Every part but the seconds ends in a blank, and exactly 0
/// is the empty text: "1h 2m 5s", "1d 1h 1m ". The parts of a negative time are negative.
[[nodiscard]] QString stringForTime(double seconds);

/// The fraction of the second in milliseconds, cut, with leading zeros: "000" to "999".
[[nodiscard]] QString msStringForTime(double seconds);

/// A duration as set: "0h 5m 0s".
[[nodiscard]] QString hmsString(qint32 hours, qint32 minutes, qint32 seconds);
} // namespace TimeFormat
