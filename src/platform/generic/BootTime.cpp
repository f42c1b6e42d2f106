#include "platform/BootTime.h"

#include <chrono>

double secondsSinceBoot()
{
    // Standard C++ does not say whether this clock counts the time in suspend. Where it does not,
    // timers end later by the length of the suspend.
    const auto time = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double>(time).count();
}
