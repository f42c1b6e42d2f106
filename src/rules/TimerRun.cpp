#include "rules/TimerRun.h"

#include "rules/BeepSchedule.h"

#include <QCoreApplication>

#include <cmath>

namespace
{
/// How many ticks there are from one notice to the rest of the program to the next.
constexpr quint32 kTicksPerStatus = 5;

/// The start date of a stopwatch that goes on from this many milliseconds.
Date startDateFor(qint64 milliseconds, Date now)
{
    // Round the duration up to whole steps of the clock. A start that is a step too early does not
    // show, but one that is too late would show a millisecond less than before.
    constexpr double stepsPerSecond = 1 << 20;
    const double steps = std::ceil(static_cast<double>(milliseconds) / 1000.0 * stepsPerSecond);
    return now.addingTimeInterval(-steps / stepsPerSecond);
}
} // namespace

QString TimerRun::withRepeatCount(const QString &time) const
{
    if (_repeatCount <= 1)
        return time;
    //: A time, and the number of the pass of a timer that loops.
    return QCoreApplication::translate("TimerRun", "%1 (x%2)")
        .arg(time, QString::number(_repeatCount));
}

RunTimes TimerRun::timesAt(Date moment) const
{
    Q_ASSERT(_startDate && _targetDate);
    return {_targetDate->timeIntervalSinceDate(moment), moment.timeIntervalSinceDate(*_startDate)};
}

double TimerRun::duration() const
{
    Q_ASSERT(_startDate && _targetDate);
    return _targetDate->timeIntervalSinceDate(*_startDate);
}

double TimerRun::counted(const RunTimes &times) const
{
    return _stopwatch ? times.elapsed : times.remaining;
}

void TimerRun::setStopwatch(bool stopwatch)
{
    Q_ASSERT(!isStarted());
    _stopwatch = stopwatch;
}

void TimerRun::start(qint32 seconds, qint32 milliseconds, Date now)
{
    _state = State::Running;
    _lastBeep = BeepSchedule::kNoBeepYet;
    if (_stopwatch) {
        _startDate = startDateFor(qint64(seconds) * 1000 + milliseconds, now);
        _targetDate = Date::distantFuture();
    } else {
        _startDate = now;
        _targetDate = now.addingTimeInterval(seconds);
        _initialTimeLeft = seconds;
    }
}

TimerRun::Rest TimerRun::stop(Date now)
{
    _state = State::Idle;
    const RunTimes times = timesAt(now);
    return {times, counted(times)};
}

void TimerRun::beginAlarm()
{
    Q_ASSERT(_state == State::Running);
    _state = State::Alarm;
}

bool TimerRun::countTicks(int ticks)
{
    _refreshCount += static_cast<quint32>(ticks);
    return _refreshCount % kTicksPerStatus == 0;
}

int TimerRun::ticksBeforeStatus() const
{
    return static_cast<int>(kTicksPerStatus - 1 - _refreshCount % kTicksPerStatus);
}

std::optional<float> TimerRun::takeBeep(double remaining)
{
    if (!BeepSchedule::isDue(remaining, _lastBeep))
        return std::nullopt;
    _lastBeep = remaining;
    return BeepSchedule::volume(remaining);
}
