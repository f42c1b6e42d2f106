#include "platform/BootTime.h"

#include <ctime>

double secondsSinceBoot()
{
    // The only clock of Linux that counts the time in suspend and cannot be set.
    timespec time{};
    clock_gettime(CLOCK_BOOTTIME, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}
