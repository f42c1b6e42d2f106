#pragma once

#include "timer/Wuffer.h"

/// Whether those next to the timer in its chain know of it, and it is not linked to itself.
inline bool linksAreSymmetric(const Wuffer &timer)
{
    const Wuffer *next = timer.getTargetWuffer();
    const Wuffer *previous = timer.getTargetingWuffer();
    return (!next || next->getTargetingWuffer() == &timer) &&
           (!previous || previous->getTargetWuffer() == &timer) && next != &timer;
}

/// Whether a walk along the chain ends after so many steps at most.
inline bool walkEndsAtNobody(const Wuffer &timer, int longest)
{
    const Wuffer *next = &timer;
    for (int steps = 0; next && steps <= longest; ++steps)
        next = next->getTargetWuffer();
    return next == nullptr;
}
