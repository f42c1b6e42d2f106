#include "base/ClockTimer.h"

#include "base/Clock.h"
#include "base/Service.h"

#include <algorithm>

void ClockTimer::startRepeating(double interval)
{
    invalidate();
    if (interval > 0)
        Service<Clock>::current().addRepeating(*this, interval);
}

void ClockTimer::startOnce(double delay)
{
    invalidate();
    Service<Clock>::current().addOneShot(*this, delay > 0 ? delay : 0);
}

void ClockTimer::skipTicks(int ticks)
{
    if (_active)
        Service<Clock>::current().skipTicks(*this, std::max(0, ticks));
}

void ClockTimer::invalidate()
{
    if (_active)
        Service<Clock>::current().remove(*this);
}
