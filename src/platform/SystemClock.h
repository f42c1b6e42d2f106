#pragma once

#include "base/Clock.h"

#include <QTimer>

/// The clock of the running program: the computer's time since it was started, mapped to
/// calendar time once. Setting the computer's clock moves no timer. Where the system counts the
/// time of a suspend (secondsSinceBoot()), timers are where they ought to be after one.
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
    /// What the alarm is set to.
    double _alarmMoment = 0;
    QTimer _alarm;
};
