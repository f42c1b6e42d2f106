#pragma once

#include <QtGlobal>

#include <functional>

/// A repeating or one-shot timer on the clock of the program; a member of whoever waits for it.
///
/// It is idle until started and stops for good when it is destroyed. Its action runs on the main
/// thread and may start, stop or restart any timer, this one included, but not destroy this one.
class ClockTimer final
{
public:
    explicit ClockTimer(std::function<void()> action) : _action(std::move(action)) {}
    ~ClockTimer() { invalidate(); }
    Q_DISABLE_COPY_MOVE(ClockTimer)

    /// Fires every so many seconds from now on, together with all repeating timers of the same
    /// interval: the first time after one interval, or sooner if the others are due sooner. An
    /// interval that is not greater than 0 is not accepted: the timer stays idle.
    void startRepeating(double interval);

    /// Fires once, so many seconds from now; at the next opportunity if that is not positive.
    void startOnce(double delay);

    /// Skips so many of the next ticks of its interval, in place of those that it was to skip
    /// before; with 0 it fires at the next one. The process sleeps through ticks that all timers
    /// of the interval skip. Nothing happens to a timer that is not repeating.
    void skipTicks(int ticks);

    /// How many ticks the last firing stands for: its own and those that were skipped before it.
    [[nodiscard]] int ticks() const { return _ticksOfFiring; }

    /// Makes the timer idle. Harmless when it is.
    void invalidate();

    /// True while the timer will fire.
    [[nodiscard]] bool isValid() const { return _active; }

private:
    friend class Clock;

    std::function<void()> _action;
    bool _active = false;
    /// How many ticks are yet to pass before it fires; below 0 while it is about to.
    int _toSkip = 0;
    /// Ticks since it last fired.
    int _ticks = 0;
    int _ticksOfFiring = 0;
};
