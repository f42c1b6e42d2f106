#pragma once

#include <compare>

/// A moment, as seconds on the scale of the program's clock.
///
/// A run is measured by the distance between two dates and never by counting ticks, so a tick
/// that comes late makes a display stale but no timer wrong.
class Date final
{
public:
    /// The present moment. Ask once for what has to agree to the last digit.
    [[nodiscard]] static Date now();

    /// Later than every other date: the end of a run that does not end.
    [[nodiscard]] static Date distantFuture();

    /// The moment so many seconds later, or earlier when negative.
    [[nodiscard]] Date addingTimeInterval(double seconds) const { return Date(_seconds + seconds); }

    /// Seconds from the other date to this one; negative when this one is earlier.
    [[nodiscard]] double timeIntervalSinceDate(Date other) const
    {
        return _seconds - other._seconds;
    }

    /// Seconds from now to this date; negative when it has passed.
    [[nodiscard]] double timeIntervalSinceNow() const { return timeIntervalSinceDate(now()); }

    [[nodiscard]] friend constexpr auto operator<=>(Date, Date) = default;

private:
    explicit constexpr Date(double seconds) : _seconds(seconds) {}

    double _seconds;
};
