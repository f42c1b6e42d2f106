#include "app/SystemServices.h"
#include "app/WufferApplication.h"

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
    return EXIT_SUCCESS;
}
