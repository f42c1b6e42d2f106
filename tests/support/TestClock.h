#pragma once

#include "base/Clock.h"

/// A clock that stands still until a test moves it.
class TestClock final : public Clock
{
public:
    [[nodiscard]] double now() const override { return inSteps(_now); }
    [[nodiscard]] QDateTime calendarNow() const override;

    /// Lets this many seconds pass. Every timer that falls due meanwhile fires at its own time, in
    /// order.
    void advance(double seconds);

    /// Lets this many seconds pass as on a suspended computer: timers that fall due meanwhile
    /// fire at the end.
    void sleep(double seconds);

    /// Shifts the calendar time, as when the user sets the computer's clock.
    void setCalendarOffset(double seconds) { _calendarOffset = seconds; }

    /// True when no timer is waiting.
    [[nodiscard]] bool isIdle() const;

    /// How often the process would have been woken since the test began.
    [[nodiscard]] int wakeUps() const { return _wakeUps; }

private:
    void nextDueChanged() override {}

    // An arbitrary morning, not at a full second, so that no test passes only at one.
    double _now = 1'800'000'000.375;
    double _calendarOffset = 0;
    int _wakeUps = 0;
};
