#include "platform/SystemClock.h"

#include "platform/BootTime.h"

#include <algorithm>
#include <cmath>

namespace
{
/// The longest interval given to QTimer, in milliseconds. QTimer takes at most 24.8 days, so a
/// longer wait is split.
constexpr double kLongestWait = 86'400'000.0;
} // namespace

SystemClock::SystemClock() :
    _bootMoment(static_cast<double>(QDateTime::currentMSecsSinceEpoch()) / 1000.0 -
                secondsSinceBoot())
{
    _alarm.setSingleShot(true);
    _alarm.setTimerType(Qt::PreciseTimer);
    _alarm.callOnTimeout([this] { wake(); });
}

double SystemClock::now() const
{
    return inSteps(_bootMoment + secondsSinceBoot());
}

QDateTime SystemClock::calendarNow() const
{
    return QDateTime::currentDateTime();
}

void SystemClock::nextDueChanged()
{
    const double due = nextDue();
    if (std::isinf(due)) {
        _alarm.stop();
        return;
    }
    // Called at every tick, mostly with the same due time; restarting a QTimer has a cost.
    if (_alarm.isActive() && due == _alarmMoment)
        return;
    _alarmMoment = due;
    // Rounded up, because a wake-up before the due time would only have to wait again.
    const double milliseconds = std::ceil((due - now()) * 1000.0);
    _alarm.start(static_cast<int>(std::clamp(milliseconds, 0.0, kLongestWait)));
}

void SystemClock::wake()
{
    fireDueTimers();
}
