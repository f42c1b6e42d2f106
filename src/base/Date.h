#pragma once

#include <compare>

/// A moment, as seconds on the scale of the program's clock.
///
/// A run is measured by the difference of two dates, never by counting ticks. So a late tick delays
/// a display, but does not make a timer wrong.
class Date final
{
public:
    /// The present moment. Two calls differ: call it once for values that must match exactly.
    [[nodiscard]] static Date now();

    /// A date later than the end of any run: the end date of a run without an end.
    [[nodiscard]] static Date distantFuture();

    /// The moment this many seconds later, or earlier if negative.
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
