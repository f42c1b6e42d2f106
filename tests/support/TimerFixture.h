#pragma once

#include "support/NoticeCounter.h"
#include "support/TestServices.h"
#include "support/TimerUser.h"

/// One timer in its window, with services of its own.
class TimerFixture : public TestServices, public TimerUser
{
public:
    void pass(double seconds) { clock.advance(seconds); }
    /// Changes a global setting and posts the notice for it, as the preferences do.
    void set(const char *key, const QVariant &value);
};
