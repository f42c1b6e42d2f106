#include "platform/BootTime.h"

#include <ctime>

double secondsSinceBoot()
{
    // The one clock of Linux that counts through suspend and that nobody can set.
    timespec time{};
    clock_gettime(CLOCK_BOOTTIME, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}
