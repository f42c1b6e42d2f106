#pragma once

/// Seconds between run ticks: often enough for the milliseconds to move smoothly.
constexpr double kRunTick = 0.037;

/// How far a run has come, in seconds.
struct RunTimes
{
    /// Zero or less when the time is up.
    double remaining = 0;
    double elapsed = 0;
};
