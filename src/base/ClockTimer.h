#pragma once

#include <QtGlobal>

#include <functional>

/// A repeating or one-shot timer on the clock of the program; usually a member of the object that
/// its action works for.
///
/// It is idle until started, and its destructor stops it. Its action runs on the main thread and
/// may start, stop or restart any timer, this one included, but not destroy this one.
class ClockTimer final
{
public:
    explicit ClockTimer(std::function<void()> action) : _action(std::move(action)) {}
    ~ClockTimer() { invalidate(); }
    Q_DISABLE_COPY_MOVE(ClockTimer)

    /// Fires at this interval in seconds, together with all repeating timers of the same interval:
    /// the first time after one interval, or sooner if the others are due sooner. If the interval
    /// is not greater than 0 the timer stays idle.
    void startRepeating(double interval);

    /// Fires once after this many seconds; as soon as possible if the delay is not positive.
    void startOnce(double delay);

    /// Skips this many of the next ticks of its interval; the number replaces that of an earlier
    /// call. With 0 the timer fires at the next tick. The process sleeps through ticks that all
    /// timers of the interval skip. Has no effect on a timer that is not repeating.
    void skipTicks(int ticks);

    /// How many ticks the last firing stands for: its own and the skipped ones before it.
    [[nodiscard]] int ticks() const { return _ticksOfFiring; }

    /// Makes the timer idle. Has no effect if it is idle already.
    void invalidate();

    /// True while the timer will fire.
    [[nodiscard]] bool isValid() const { return _active; }

private:
    friend class Clock;

    std::function<void()> _action;
    bool _active = false;
    /// How many ticks are to pass before it fires; below 0 while it is about to fire.
    int _toSkip = 0;
    /// Ticks since it last fired.
    int _ticks = 0;
    int _ticksOfFiring = 0;
};
