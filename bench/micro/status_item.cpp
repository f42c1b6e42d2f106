#include "app/RunningTimersMenu.h"
#include "app/StatusPresenter.h"
#include "app/WufferApplication.h"
#include "base/Service.h"
#include "platform/StatusItem.h"
#include "timer/Wuffer.h"
#include "timer/WufferWindow.h"

#include <benchmark/benchmark.h>
#include <iterator>

// The status item of real timers, refreshed at each fifth tick of each of them.

namespace
{
/// Lets so many timers run, of which each ends a second after another. They are kept: a benchmark
/// is called several times, and a thousand windows take a while to make.
void runTimers(qint64 count)
{
    while (std::ssize(WufferApplication::getWuffers()) > count)
        WufferApplication::getWuffers().back()->window()->close();
    while (std::ssize(WufferApplication::getWuffers()) < count) {
        Wuffer &timer = WufferApplication::instance().openWuffer();
        timer.setFieldsWithTimeLeft(5000 +
                                    static_cast<double>(WufferApplication::getWuffers().size()));
        timer.goPressed();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void refreshStatus(benchmark::State &state)
{
    runTimers(state.range(0));
    StatusPresenter presenter(Service<StatusItem>::current());
    for (auto _ : state)
        presenter.refreshStatusItem();
}
BENCHMARK(refreshStatus)->RangeMultiplier(10)->Range(1, 1000);

void listRunning(benchmark::State &state)
{
    runTimers(state.range(0));
    RunningTimersMenu menu;
    menu.setTimers(RunningTimers::among(WufferApplication::getWuffers()));
    for (auto _ : state)
        benchmark::DoNotOptimize(menu.lines());
}
BENCHMARK(listRunning)->RangeMultiplier(10)->Range(1, 1000);
} // namespace
