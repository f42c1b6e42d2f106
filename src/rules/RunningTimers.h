#pragma once

#include "base/Date.h"

#include <algorithm>
#include <iterator>
#include <vector>

/// Which timers run, and in what order they end. For the timers of the program and for anything
/// else that has `isRunning` and `targetDate`.
namespace RunningTimers
{
/// A timer that runs.
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

/// Those of the timers that run, in the same order.
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

/// The one that ends first, of several the last in the list; null when there is none.
template<class Timer> [[nodiscard]] Timer *soonestEnding(const std::vector<Running<Timer>> &running)
{
    const auto first = std::min_element(running.rbegin(), running.rend(), endsBefore<Timer>);
    return first == running.rend() ? nullptr : first->timer;
}

/// From the one that ends first to the one that ends last. Of several that end at the same moment,
/// those further down in the list come first.
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
