#pragma once

#include "base/Clock.h"

#include <QTimer>

/// The clock of the running program: the time since the computer was started, mapped to calendar
/// time once. Setting the computer's clock moves no timer. Timers stay right across a suspend where
/// secondsSinceBoot() counts it.
class SystemClock final : public Clock
{
public:
    SystemClock();

    [[nodiscard]] double now() const override;
    [[nodiscard]] QDateTime calendarNow() const override;

private:
    void nextDueChanged() override;
    void wake();

    double _bootMoment;
    /// The time for which the alarm is set.
    double _alarmMoment = 0;
    QTimer _alarm;
};
