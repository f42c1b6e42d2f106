#pragma once

#include "base/Date.h"

#include <algorithm>
#include <iterator>
#include <vector>

/// Which timers run, and in which order they end. Works on any type with `isRunning` and
/// `targetDate`.
namespace RunningTimers
{
/// A running timer and its end.
template<class Timer> struct Running
{
    Timer *timer;
    Date end;

    [[nodiscard]] friend bool operator==(const Running &, const Running &) = default;
};

template<class Timer>
[[nodiscard]] bool endsBefore(const Running<Timer> &one, const Running<Timer> &other)
{
    return one.end.timeIntervalSinceDate(other.end) < 0;
}

/// The running timers of the list, in its order.
template<class Timer>
[[nodiscard]] std::vector<Running<Timer>> among(const std::vector<Timer *> &timers)
{
    std::vector<Running<Timer>> running;
    running.reserve(timers.size());
    for (Timer *timer : timers) {
        if (timer->isRunning())
            running.push_back({timer, timer->targetDate().value_or(Date::distantFuture())});
    }
    return running;
}

/// The timer that ends first; of several with the same end, the last in the list. Null for an empty
/// list.
template<class Timer> [[nodiscard]] Timer *soonestEnding(const std::vector<Running<Timer>> &running)
{
    const auto first = std::min_element(running.rbegin(), running.rend(), endsBefore<Timer>);
    return first == running.rend() ? nullptr : first->timer;
}

/// The timers from the first to end to the last. Those with the same end are in reverse order of
/// the list.
template<class Timer>
[[nodiscard]] std::vector<Timer *> inOrderOfEnding(std::vector<Running<Timer>> running)
{
    std::ranges::reverse(running);
    std::stable_sort(running.begin(), running.end(), endsBefore<Timer>);
    std::vector<Timer *> ordered;
    ordered.reserve(running.size());
    std::ranges::transform(running, std::back_inserter(ordered), &Running<Timer>::timer);
    return ordered;
}
} // namespace RunningTimers
