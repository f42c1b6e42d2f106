#include "app/StatusDescription.h"
#include "micro/PlainTimer.h"
#include "rules/TimeFormat.h"

#include <benchmark/benchmark.h>

// The texts that are made at every tick of a timer.

namespace
{
/// A day and a bit less than two hours: every part is there but the days with two digits.
constexpr double kLongest = 93'784.567;

void displayText(benchmark::State &state)
{
    double seconds = kLongest;
    for (auto _ : state) {
        benchmark::DoNotOptimize(TimeFormat::stringForTime(seconds));
        seconds -= 0.037;
    }
}
BENCHMARK(displayText);

void millisecondsText(benchmark::State &state)
{
    double seconds = kLongest;
    for (auto _ : state) {
        benchmark::DoNotOptimize(TimeFormat::msStringForTime(seconds));
        seconds -= 0.037;
    }
}
BENCHMARK(millisecondsText);

void durationText(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(TimeFormat::hmsString(26, 3, 4));
}
BENCHMARK(durationText);

void statusLine(benchmark::State &state)
{
    const PlainTimer timer;
    for (auto _ : state)
        benchmark::DoNotOptimize(StatusDescription<PlainTimer>::line(timer));
}
BENCHMARK(statusLine);
} // namespace
