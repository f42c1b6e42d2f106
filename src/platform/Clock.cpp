#include "platform/Clock.h"

#include "platform/ClockTimer.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{
/// Stands for the interval of a timer that fires once and therefore alone.
constexpr double kOnce = 0.0;
} // namespace

double Clock::inSteps(double seconds)
{
    constexpr double stepsPerSecond = 1 << 20;
    return std::isnan(seconds) ? 0.0 : std::floor(seconds * stepsPerSecond) / stepsPerSecond;
}

double Clock::nextDue() const
{
    double due = std::numeric_limits<double>::infinity();
    for (const Group &group : _groups)
        due = std::min(due, group.due);
    return due;
}

void Clock::fireDueTimers()
{
    const double moment = now();
    std::vector<Group *> dueGroups;
    for (Group &group : _groups) {
        if (group.due <= moment)
            dueGroups.push_back(&group);
    }
    std::ranges::stable_sort(dueGroups, {}, &Group::due);

    ++_firing;
    for (Group *group : dueGroups) {
        // An event loop inside an action has given the others their turn.
        if (group->due > moment)
            continue;
        group->due = dueAfter(*group, moment);
        nextDueChanged();
        fire(*group);
    }
    --_firing;
    tidy();
}

double Clock::dueAfter(const Group &group, double moment)
{
    if (group.interval == kOnce)
        return std::numeric_limits<double>::infinity();
    // A tick that was missed is not made up for: the next one is the first still to come.
    const double ticks = std::floor((moment - group.due) / group.interval) + 1;
    return group.due + ticks * group.interval;
}

void Clock::fire(Group &group)
{
    // A timer that joins while the others fire has its first turn at the next tick.
    const std::size_t count = group.members.size();
    for (std::size_t i = 0; i < count; ++i) {
        ClockTimer *timer = group.members[i];
        if (!timer)
            continue;
        if (group.interval == kOnce)
            remove(*timer);
        timer->_action();
    }
}

void Clock::addRepeating(ClockTimer &timer, double interval)
{
    auto group = std::ranges::find(_groups, interval, &Group::interval);
    if (group == _groups.end())
        group = _groups.insert(group, {now() + interval, interval, {}});
    else if (std::ranges::count(group->members, nullptr) == std::ssize(group->members))
        group->due = now() + interval;
    group->members.push_back(&timer);
    timer._active = true;
    nextDueChanged();
}

void Clock::addOneShot(ClockTimer &timer, double delay)
{
    _groups.push_back({now() + delay, kOnce, {&timer}});
    timer._active = true;
    nextDueChanged();
}

void Clock::remove(ClockTimer &timer)
{
    for (Group &group : _groups)
        std::ranges::replace(group.members, &timer, static_cast<ClockTimer *>(nullptr));
    timer._active = false;
    tidy();
}

void Clock::tidy()
{
    if (_firing > 0)
        return;
    for (Group &group : _groups)
        std::erase(group.members, nullptr);
    std::erase_if(_groups, [](const Group &group) { return group.members.empty(); });
    nextDueChanged();
}
