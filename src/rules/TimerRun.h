#pragma once

#include "base/Date.h"
#include "rules/RunTimes.h"

#include <QString>

#include <optional>

/// The run of a timer: what it counts, when it began and when it ends, and what is due at each of
/// its ticks.
///
/// It knows no window and no sound. Whoever owns it reads the clock, beats the ticks and shows what
/// the run says. A run is measured between dates and never by its ticks, of which some may be late
/// or left out. One object serves all runs of a timer, one after another.
class TimerRun final
{
public:
    enum class State {
        Idle,
        /// Counting down or up.
        Running,
        /// At its end, until it is stopped.
        Alarm,
    };

    /// What a stop leaves.
    struct Rest
    {
        RunTimes times;
        /// What the next start goes on from, in seconds: what is left of a countdown, or what a
        /// stopwatch has counted. Zero or less where nothing is left.
        double value = 0;
    };

    [[nodiscard]] State state() const { return _state; }
    /// Running or in the alarm: from a start to the next stop.
    [[nodiscard]] bool isStarted() const { return _state != State::Idle; }
    [[nodiscard]] bool isStopwatch() const { return _stopwatch; }
    /// When the run ends: the distant future for a stopwatch, nothing before the first start. It
    /// stays after a stop.
    [[nodiscard]] std::optional<Date> targetDate() const { return _targetDate; }
    /// The duration of the last countdown that was started, in seconds; 0 before the first.
    [[nodiscard]] double initialTimeLeft() const { return _initialTimeLeft; }
    /// Which pass of a looping timer this is, from 1.
    [[nodiscard]] quint32 repeatCount() const { return _repeatCount; }
    /// " (x2)" from the second pass of a looping timer on; empty before.
    [[nodiscard]] QString repeatSuffix() const;

    /// How far the run has come at a moment. There must have been a start.
    [[nodiscard]] RunTimes timesAt(Date moment) const;
    /// Seconds from the start to the end. There must have been a start.
    [[nodiscard]] double duration() const;
    /// Of the times, the one that the timer counts: elapsed for a stopwatch, else remaining.
    [[nodiscard]] double counted(const RunTimes &times) const;

    /// A stopwatch from now on, or a countdown. Not while it is started.
    void setStopwatch(bool stopwatch);

    /// Begins a countdown of so many seconds, which may be zero or negative and is then over at
    /// once, or lets a stopwatch go on from these seconds and milliseconds.
    void start(qint32 seconds, qint32 milliseconds, Date now);
    /// Ends the run, or its alarm.
    Rest stop(Date now);
    /// The countdown is over; the alarm begins.
    void beginAlarm();

    /// Another pass of a looping timer follows.
    void countRepeat() { ++_repeatCount; }
    /// The loop is over.
    void resetRepeatCount() { _repeatCount = 1; }

    /// Counts ticks that have passed; true at every fifth tick, at which the rest of the program
    /// is told. They are counted on from run to run.
    [[nodiscard]] bool countTicks(int ticks);
    /// How many ticks there are before the next fifth.
    [[nodiscard]] int ticksBeforeStatus() const;

    /// The volume of the countdown beep that is due with so many seconds left; nothing when none
    /// is. It counts as having sounded.
    [[nodiscard]] std::optional<float> takeBeep(double remaining);

private:
    State _state = State::Idle;
    bool _stopwatch = false;
    std::optional<Date> _targetDate;
    std::optional<Date> _startDate;
    /// Seconds that were left at the last countdown beep.
    double _lastBeep = 0;
    quint32 _repeatCount = 1;
    /// Ticks since the timer was made.
    quint32 _refreshCount = 0;
    double _initialTimeLeft = 0;
};
