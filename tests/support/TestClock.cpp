#include "support/TestClock.h"

#include <cmath>

QDateTime TestClock::calendarNow() const
{
    return QDateTime::fromMSecsSinceEpoch(
        static_cast<qint64>(std::floor((_now + _calendarOffset) * 1000.0)));
}

void TestClock::advance(double seconds)
{
    const double end = _now + seconds;
    while (nextDue() <= end) {
        // One clock step late, because now() rounds down and the timer must be due by then.
        _now = std::max(_now, nextDue() + 0x1p-20);
        ++_wakeUps;
        fireDueTimers();
    }
    _now = std::max(_now, end);
}

void TestClock::sleep(double seconds)
{
    _now += seconds;
    advance(0);
}

bool TestClock::isIdle() const
{
    return std::isinf(nextDue());
}
