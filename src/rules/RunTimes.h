#pragma once

#include <algorithm>

/// Seconds between run ticks: often enough for the milliseconds to move smoothly.
constexpr double kRunTick = 0.037;

/// How far a run has come, in seconds.
struct RunTimes
{
    /// Zero or less when the time is up.
    double remaining = 0;
    double elapsed = 0;
};

/// The share of a countdown that is left, from 0 to 1.
[[nodiscard]] constexpr double shareLeft(const RunTimes &times)
{
    const double duration = times.remaining + times.elapsed;
    return duration > 0 ? std::clamp(times.remaining / duration, 0.0, 1.0) : 0.0;
}
