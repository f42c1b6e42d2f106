#pragma once

#include <QDateTime>

#include <list>
#include <vector>

class ClockTimer;

/// Where time comes from, and what wakes the timers that wait for it.
///
/// All timers of the program share the one clock that is installed as Service<Clock>. Repeating
/// timers of the same interval fire together, so that any number of them wakes the process no
/// more often than one does; when none is active nothing wakes it at all. Main thread.
class Clock
{
public:
    Clock() = default;
    virtual ~Clock() = default;
    Q_DISABLE_COPY_MOVE(Clock)

    /// Seconds since the beginning of 1970, UTC, as of when the clock was made; from then on it
    /// counts every second, suspended ones included, and nobody can set it. A multiple of
    /// 2^-20 s, so that adding and subtracting whole seconds loses nothing.
    [[nodiscard]] virtual double now() const = 0;

    /// What the calendar and the clock on the wall say, in local time. May jump.
    [[nodiscard]] virtual QDateTime calendarNow() const = 0;

protected:
    /// Fires every timer that is due now in the order in which they were due, each at most once
    /// however late it is.
    void fireDueTimers();

    /// The moment at which the next timer is due, on the scale of now(); infinity for none.
    [[nodiscard]] double nextDue() const;

    /// Called whenever nextDue() may have changed.
    virtual void nextDueChanged() = 0;

    /// Rounds down to the steps that now() promises. Not-a-number becomes 0.
    [[nodiscard]] static double inSteps(double seconds);

private:
    friend class ClockTimer;

    /// Timers that fire together. Members are only blanked, and groups kept, while firing, so
    /// that whatever a timer does to the others leaves the walk over them intact.
    struct Group
    {
        /// The next tick, which all members may be about to skip.
        double tick;
        double interval;
        std::vector<ClockTimer *> members;

        /// How many ticks pass until the first at which a member is to fire.
        [[nodiscard]] int ticksToSkip() const;
        [[nodiscard]] double due() const { return tick + ticksToSkip() * interval; }
        /// Counts so many ticks for every member.
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
