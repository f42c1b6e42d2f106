#pragma once

#include "support/TimerFixture.h"

/// A timer on a computer that gets suspended, and counts of what the user hears and sees after it.
class Sleeper final : public TimerFixture
{
public:
    /// Suspends the computer for this many seconds, then keeps it awake for a moment.
    void sleepAndWake(double seconds)
    {
        sounds.clearDiary();
        notifications.shown.clear();
        desktop.attentionAskedFor.clear();
        clock.sleep(seconds);
        pass(0.19);
    }

    /// Ends every sound that plays, and waits until the next sounds begin.
    void endSounds()
    {
        sounds.endAll();
        pass(0.21);
    }

    [[nodiscard]] int rings() const { return int(notifications.shown.size()); }
    [[nodiscard]] int alarms() const { return plays(QStringLiteral("wolvesWuff.wav")); }
    [[nodiscard]] int beeps() const { return plays(QStringLiteral("crow.wav")); }
    [[nodiscard]] int attentions() const { return int(desktop.attentionAskedFor.size()); }

private:
    [[nodiscard]] int plays(const QString &sound) const
    {
        return int(sounds.diary(QStringLiteral("play ") + sound).size());
    }
};
