#pragma once

#include "base/Service.h"
#include "support/TestClock.h"

#include <QStringList>

/// A test clock that serves as the program's clock, and a diary that the test's timers write into.
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

    /// All entries of the diary, separated by spaces.
    [[nodiscard]] QString entries() const { return diary.join(QLatin1Char(' ')); }

private:
    Service<Clock> _service{clock};
};
