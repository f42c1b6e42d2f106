#include "app/StatusDescription.h"
#include "micro/PlainTimer.h"
#include "rules/RunningTimers.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <random>
#include <vector>

// What is done with all running timers: at each of their notices, and for each look at the list.

namespace
{
enum class Order { Rising, Falling, Shuffled };

/// Timers of which each ends a second after another.
class Timers final
{
public:
    Timers(qint64 count, Order order) : _timers(static_cast<std::size_t>(count))
    {
        const Date first = Date::distantFuture().addingTimeInterval(-1e6);
        for (PlainTimer &timer : _timers) {
            timer.end = first.addingTimeInterval(static_cast<double>(_pointers.size()));
            _pointers.push_back(&timer);
        }
        if (order == Order::Falling)
            std::ranges::reverse(_pointers);
        else if (order == Order::Shuffled)
            std::ranges::shuffle(_pointers, std::mt19937(1)); // NOLINT: the same at each run
    }

    [[nodiscard]] const std::vector<PlainTimer *> &all() const { return _pointers; }

private:
    std::vector<PlainTimer> _timers;
    std::vector<PlainTimer *> _pointers;
};

void describeStatus(benchmark::State &state)
{
    const Timers timers(state.range(0), Order::Shuffled);
    for (auto _ : state) {
        const auto running = RunningTimers::among(timers.all());
        benchmark::DoNotOptimize(StatusDescription<PlainTimer>::of(running));
    }
}
BENCHMARK(describeStatus)->RangeMultiplier(10)->Range(1, 1000);

void putInOrder(benchmark::State &state, Order order)
{
    const Timers timers(state.range(0), order);
    for (auto _ : state)
        benchmark::DoNotOptimize(
            RunningTimers::inOrderOfEnding(RunningTimers::among(timers.all())));
}
BENCHMARK_CAPTURE(putInOrder, rising, Order::Rising)->RangeMultiplier(10)->Range(1, 1000);
BENCHMARK_CAPTURE(putInOrder, falling, Order::Falling)->RangeMultiplier(10)->Range(1, 1000);
BENCHMARK_CAPTURE(putInOrder, shuffled, Order::Shuffled)->RangeMultiplier(10)->Range(1, 1000);
} // namespace
