#pragma once

#include "base/Service.h"
#include "support/TestClock.h"

#include <QStringList>

/// A clock in force, and a diary of what the timers of the test do.
class ClockFixture
{
public:
    TestClock clock;
    QStringList diary;

    /// An action that writes this into the diary.
    [[nodiscard]] auto writes(const char *entry)
    {
        return [this, entry] { diary << QString::fromLatin1(entry); };
    }

    /// The whole of the diary, with spaces between.
    [[nodiscard]] QString entries() const { return diary.join(QLatin1Char(' ')); }

private:
    Service<Clock> _service{clock};
};
