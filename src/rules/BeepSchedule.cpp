#include "rules/BeepSchedule.h"

#include <algorithm>

bool BeepSchedule::isDue(double remaining, double lastBeep)
{
    return remaining < 12.0 && remaining < lastBeep - 1.0;
}

float BeepSchedule::volume(double remaining)
{
    constexpr float volumePerSecond = 0.03F;
    const auto secondsIn = static_cast<float>(11.0 - remaining);
    return secondsIn < 0 ? 0.0F : std::max(secondsIn, 1.0F) * volumePerSecond;
}
