#include "platform/BootTime.h"

#include <chrono>

double secondsSinceBoot()
{
    // Standard C++ does not say whether this clock counts a suspend. Where it stands still
    // meanwhile, timers end later by the length of the suspend.
    const auto time = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double>(time).count();
}
