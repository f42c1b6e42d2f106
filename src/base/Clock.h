#pragma once

#include <QDateTime>

#include <list>
#include <vector>

class ClockTimer;

/// Tells the time and fires the timers.
///
/// All timers of the program share the clock that is installed as Service<Clock>. Repeating timers
/// of the same interval fire together, so that many of them wake the process no more often than
/// one. Without active timers the clock never wakes it. Main thread.
class Clock
{
public:
    Clock() = default;
    virtual ~Clock() = default;
    Q_DISABLE_COPY_MOVE(Clock)

    /// Seconds since the beginning of 1970, UTC. The system time sets the start when the clock is
    /// made; after that it counts every second, also during suspend, and changes of the system
    /// time do not affect it. A multiple of 2^-20 s, so that adding whole seconds is exact.
    [[nodiscard]] virtual double now() const = 0;

    /// The date and time of the system in local time. Jumps when the system time is changed.
    [[nodiscard]] virtual QDateTime calendarNow() const = 0;

protected:
    /// Fires every timer that is due, in the order in which they became due, each at most once
    /// however late it is.
    void fireDueTimers();

    /// The moment, on the scale of now(), at which the next timer is due; infinity without one.
    [[nodiscard]] double nextDue() const;

    /// Called whenever nextDue() may have changed.
    virtual void nextDueChanged() = 0;

    /// Rounds down to a multiple of 2^-20 s, as now() returns. NaN becomes 0.
    [[nodiscard]] static double inSteps(double seconds);

private:
    friend class ClockTimer;

    /// Timers that fire together. While timers fire, a member that is removed becomes null and no
    /// group is erased, so that an action can start and stop timers during the iteration.
    struct Group
    {
        /// The next tick, even if all members are to skip it.
        double tick;
        double interval;
        std::vector<ClockTimer *> members;

        /// How many ticks pass before the first one at which a member is to fire.
        [[nodiscard]] int ticksToSkip() const;
        [[nodiscard]] double due() const { return tick + ticksToSkip() * interval; }
        /// Adds to the ticks that each member has counted, and takes from those it is to skip.
        void count(int ticks);
    };

    void addRepeating(ClockTimer &timer, double interval);
    void addOneShot(ClockTimer &timer, double delay);
    void remove(ClockTimer &timer);
    void skipTicks(ClockTimer &timer, int ticks);
    [[nodiscard]] Group *groupOf(const ClockTimer &timer);
    [[nodiscard]] static double tickAfter(const Group &group, double moment);
    void countTicksSlept(Group &group) const;
    void fire(Group &group);
    void tidy();

    std::list<Group> _groups;
    int _firing = 0;
};
