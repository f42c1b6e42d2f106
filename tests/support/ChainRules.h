#pragma once

#include "timer/Wuffer.h"

/// Whether the timer's neighbours in the chain link back to it, and it is not linked to itself.
inline bool linksAreSymmetric(const Wuffer &timer)
{
    const Wuffer *next = timer.getTargetWuffer();
    const Wuffer *previous = timer.getTargetingWuffer();
    return (!next || next->getTargetingWuffer() == &timer) &&
           (!previous || previous->getTargetWuffer() == &timer) && next != &timer;
}

/// Whether the chain after the timer ends within this many links.
inline bool chainEndsWithin(const Wuffer &timer, int longest)
{
    const Wuffer *next = &timer;
    for (int steps = 0; next && steps <= longest; ++steps)
        next = next->getTargetWuffer();
    return next == nullptr;
}
