#include "rules/Chain.h"

#include <benchmark/benchmark.h>

// The walk along a chain of timers, from one in its middle.

namespace
{
struct Link
{
    Link *before = nullptr;
    Link *after = nullptr;
};

void walkChain(benchmark::State &state)
{
    std::vector<Link> links(static_cast<std::size_t>(state.range(0)));
    for (std::size_t i = 1; i < links.size(); ++i) {
        links[i].before = &links[i - 1];
        links[i - 1].after = &links[i];
    }
    Link &middle = links[links.size() / 2];
    for (auto _ : state) {
        benchmark::DoNotOptimize(Chain::membersThrough(
            middle, [](const Link &link) { return link.before; },
            [](const Link &link) { return link.after; }));
    }
}
BENCHMARK(walkChain)->Arg(2)->Arg(10)->Arg(100)->Arg(1000);
} // namespace
