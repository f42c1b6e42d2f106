#pragma once

#include "base/Date.h"
#include "rules/RunTimes.h"

#include <QString>

#include <optional>

/// The run of a timer: what it counts, when it began and when it ends, and what is due at each of
/// its ticks.
///
/// It needs no window and plays no sound. Its owner reads the clock, drives the ticks and shows the
/// times. Times are measured between dates and never by counting ticks, which may be late or
/// skipped. One object serves all runs of a timer, one after another.
class TimerRun final
{
public:
    enum class State {
        Idle,
        /// Counting down or up.
        Running,
        /// The countdown has ended; lasts until the timer is stopped.
        Alarm,
    };

    /// The result of a stop.
    struct Rest
    {
        RunTimes times;
        /// Where the next start continues, in seconds: the remaining time of a countdown or the
        /// elapsed time of a stopwatch. Zero or less if nothing is left.
        double value = 0;
    };

    [[nodiscard]] State state() const { return _state; }
    /// Running or in the alarm: from a start to the next stop.
    [[nodiscard]] bool isStarted() const { return _state != State::Idle; }
    [[nodiscard]] bool isStopwatch() const { return _stopwatch; }
    /// When the run ends: the distant future for a stopwatch, nothing before the first start. A
    /// stop keeps the date.
    [[nodiscard]] std::optional<Date> targetDate() const { return _targetDate; }
    /// The duration of the last countdown that was started, in seconds; 0 before the first.
    [[nodiscard]] double initialTimeLeft() const { return _initialTimeLeft; }
    /// Which pass of a looping timer this is, counted from 1.
    [[nodiscard]] quint32 repeatCount() const { return _repeatCount; }
    /// The text of a time with the number of the pass, "5s (x2)", from the second pass of a looping
    /// timer on; the text alone in the first.
    [[nodiscard]] QString withRepeatCount(const QString &time) const;

    /// How far the run has come at this moment. Only after the first start.
    [[nodiscard]] RunTimes timesAt(Date moment) const;
    /// Seconds from the start to the end. Only after the first start.
    [[nodiscard]] double duration() const;
    /// The time that the timer counts: elapsed for a stopwatch, else remaining.
    [[nodiscard]] double counted(const RunTimes &times) const;

    /// Turns the timer into a stopwatch or a countdown. Not while started.
    void setStopwatch(bool stopwatch);

    /// Starts a countdown of this many seconds; with zero or fewer it is over at once. A stopwatch
    /// continues from these seconds and milliseconds instead.
    void start(qint32 seconds, qint32 milliseconds, Date now);
    /// Ends the run, or its alarm.
    Rest stop(Date now);
    /// The countdown is over and the alarm begins.
    void beginAlarm();

    /// A looping timer is about to start its next pass.
    void countRepeat() { ++_repeatCount; }
    /// The loop is over: the next pass is the first.
    void resetRepeatCount() { _repeatCount = 1; }

    /// Counts ticks that have passed. True at every fifth tick, when the rest of the program is
    /// notified. The count continues from run to run.
    [[nodiscard]] bool countTicks(int ticks);
    /// How many ticks come before the next fifth one.
    [[nodiscard]] int ticksBeforeStatus() const;

    /// The volume of the beep that is due with this many seconds remaining, or nothing if none is
    /// due. Records the beep as played.
    [[nodiscard]] std::optional<float> takeBeep(double remaining);

private:
    State _state = State::Idle;
    bool _stopwatch = false;
    std::optional<Date> _targetDate;
    std::optional<Date> _startDate;
    /// Seconds that were left at the last beep.
    double _lastBeep = 0;
    quint32 _repeatCount = 1;
    /// Ticks since the timer was created.
    quint32 _refreshCount = 0;
    double _initialTimeLeft = 0;
};
