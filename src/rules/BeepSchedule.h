#pragma once

/// When a countdown beeps in its last seconds, and how loudly.
namespace BeepSchedule
{
/// The value of lastBeep before the first beep of a run: larger than at any beep.
constexpr double kNoBeepYet = 100.0;

/// Whether a beep is due with this many seconds remaining: in the last 12 seconds, and more than a
/// second after the last beep, which sounded with lastBeep seconds remaining.
[[nodiscard]] bool isDue(double remaining, double lastBeep);

/// The volume of the beep, from 0 to 0.33. Silent with more than 11 seconds remaining, when
/// a beep only sets the rhythm; then louder towards the end.
[[nodiscard]] float volume(double remaining);
} // namespace BeepSchedule
