#include "app/SystemServices.h"
#include "app/WufferApplication.h"
#include "timer/Wuffer.h"
#include "timer/WufferWindow.h"

#include <benchmark/benchmark.h>

/// Runs the small benchmarks inside the program, without a screen.
int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const WufferApplication application(argc, argv);
    const SystemServices services;
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return EXIT_FAILURE;
    benchmark::RunSpecifiedBenchmarks();
    // What the benchmarks have left must not outlive the services.
    for (const Wuffer *timer : WufferApplication::getWuffers())
        timer->window()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return EXIT_SUCCESS;
}
