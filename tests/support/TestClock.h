#pragma once

#include "base/Clock.h"

/// A clock that stands still until a test moves it.
class TestClock final : public Clock
{
public:
    [[nodiscard]] double now() const override { return inSteps(_now); }
    [[nodiscard]] QDateTime calendarNow() const override;

    /// Lets so many seconds pass: every timer that comes due on the way fires at its moment and
    /// in its turn.
    void advance(double seconds);

    /// Lets so many seconds pass during which nothing wakes, as when the computer sleeps; what
    /// is due fires afterwards.
    void sleep(double seconds);

    /// Moves what the calendar says, as when somebody sets the computer's time.
    void setCalendarOffset(double seconds) { _calendarOffset = seconds; }

    /// True when no timer is waiting.
    [[nodiscard]] bool isIdle() const;

    /// How often the process would have been woken since the test began.
    [[nodiscard]] int wakeUps() const { return _wakeUps; }

private:
    void nextDueChanged() override {}

    // An arbitrary morning, off the full second so that nothing works only on one.
    double _now = 1'800'000'000.375;
    double _calendarOffset = 0;
    int _wakeUps = 0;
};
