#include "base/Clock.h"

#include "base/ClockTimer.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace
{
/// The interval of the group of a one-shot timer, which has no other members.
constexpr double kOnce = 0.0;
} // namespace

double Clock::inSteps(double seconds)
{
    constexpr double stepsPerSecond = 1 << 20;
    return std::isnan(seconds) ? 0.0 : std::floor(seconds * stepsPerSecond) / stepsPerSecond;
}

int Clock::Group::ticksToSkip() const
{
    int ticks = std::numeric_limits<int>::max();
    for (const ClockTimer *member : members) {
        if (member)
            ticks = std::min(ticks, std::max(0, member->_toSkip));
    }
    return ticks == std::numeric_limits<int>::max() ? 0 : ticks;
}

void Clock::Group::count(int ticks)
{
    for (ClockTimer *member : members) {
        if (!member)
            continue;
        member->_ticks += ticks;
        member->_toSkip -= ticks;
    }
}

double Clock::nextDue() const
{
    double due = std::numeric_limits<double>::infinity();
    for (const Group &group : _groups)
        due = std::min(due, group.due());
    return due;
}

void Clock::fireDueTimers()
{
    const double moment = now();
    std::vector<Group *> dueGroups;
    for (Group &group : _groups) {
        if (group.due() <= moment)
            dueGroups.push_back(&group);
    }
    std::ranges::stable_sort(dueGroups, {}, &Group::due);

    ++_firing;
    for (Group *group : dueGroups) {
        // A nested event loop in an action may have fired this group already.
        if (group->due() > moment)
            continue;
        const int ticks = group->ticksToSkip() + 1;
        group->tick = tickAfter(*group, moment);
        group->count(ticks);
        nextDueChanged();
        fire(*group);
    }
    --_firing;
    tidy();
}

double Clock::tickAfter(const Group &group, double moment)
{
    if (group.interval == kOnce)
        return std::numeric_limits<double>::infinity();
    // Missed ticks are not made up for: the next tick is the first one in the future.
    const double passed = std::floor((moment - group.tick) / group.interval);
    const double ticks = std::max<double>(passed, group.ticksToSkip()) + 1;
    return group.tick + ticks * group.interval;
}

void Clock::countTicksSlept(Group &group) const
{
    const double moment = now();
    if (group.interval == kOnce || group.tick > moment)
        return;
    // Counts only ticks that all members skip. A tick that is due but late stays due.
    const double passed = std::floor((moment - group.tick) / group.interval) + 1;
    const int toSkip = group.ticksToSkip();
    const int ticks = passed < toSkip ? static_cast<int>(passed) : toSkip;
    group.tick += ticks * group.interval;
    group.count(ticks);
}

void Clock::fire(Group &group)
{
    // A timer that joins during this loop fires for the first time at the next tick.
    const std::size_t count = group.members.size();
    for (std::size_t i = 0; i < count; ++i) {
        ClockTimer *timer = group.members[i];
        if (!timer || timer->_toSkip >= 0)
            continue;
        timer->_toSkip = 0;
        timer->_ticksOfFiring = std::exchange(timer->_ticks, 0);
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
        group->tick = now() + interval;
    countTicksSlept(*group);
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
    timer._toSkip = 0;
    timer._ticks = 0;
    tidy();
}

void Clock::skipTicks(ClockTimer &timer, int ticks)
{
    Group *group = groupOf(timer);
    if (!group || group->interval == kOnce || timer._toSkip == ticks)
        return;
    countTicksSlept(*group);
    timer._toSkip = ticks;
    if (_firing == 0)
        nextDueChanged();
}

Clock::Group *Clock::groupOf(const ClockTimer &timer)
{
    const auto group = std::ranges::find_if(_groups, [&](const Group &each) {
        return std::ranges::find(each.members, &timer) != each.members.end();
    });
    return group == _groups.end() ? nullptr : &*group;
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
