#pragma once

/// When a countdown beeps in its last seconds, and how loudly.
namespace BeepSchedule
{
/// What a start sets as the remaining time at the last beep: earlier than every beep.
constexpr double kNoBeepYet = 100.0;

/// Whether a beep is due with so many seconds left, the last one having sounded with lastBeep
/// left: in the last 12 seconds, a second or more after the one before.
[[nodiscard]] bool isDue(double remaining, double lastBeep);

/// The volume of the beep, from 0 to 0.33: silent before 11 seconds are left, so that the first
/// beep only sets the pace, then rising to the end.
[[nodiscard]] float volume(double remaining);
} // namespace BeepSchedule
