#include "base/NotificationCenter.h"
#include "rules/BeepSchedule.h"
#include "rules/NumberText.h"
#include "rules/RunTimes.h"
#include "rules/TimeFields.h"
#include "rules/TimerTexts.h"
#include "sounds/SoundPreviews.h"
#include "timer/TimeEntry.h"
#include "timer/Wuffer.h"
#include "timer/WufferWindow.h"
#include "ui_Wuffer.h"

#include <cmath>

namespace
{
/// Every so many run ticks the rest of the program is told, and an energy-saving timer works.
constexpr quint32 kTicksPerStatus = 5;
/// With fewer seconds left than this, every tick counts: for the beeps, and for the end.
constexpr double kLastSeconds = 13.0;

/// When a stopwatch that goes on from so many milliseconds must have begun.
Date beginningOf(qint64 milliseconds, Date now)
{
    // Rounded up to whole steps of the clock: any earlier moment would do for the stopwatch, but
    // a later one would show a millisecond less than it stopped at.
    constexpr double stepsPerSecond = 1 << 20;
    const double steps = std::ceil(static_cast<double>(milliseconds) / 1000.0 * stepsPerSecond);
    return now.addingTimeInterval(-steps / stepsPerSecond);
}
} // namespace

void Wuffer::goPressed()
{
    _alarmNotification.answer();
    toggleRun();
}

void Wuffer::toggleRun()
{
    if (_timerStarted)
        stopRun();
    else
        startRun();

    if (_doneSound)
        _doneSound->stop();
    saveSettingsToDefaultKey();
    if (shouldKeepWuffing() && !_soundOff)
        _ui->_keepWuffingBox->setEnabled(true);
    postStatusChanged();
    Q_EMIT stateChanged();
}

void Wuffer::startRun()
{
    // A sheet that still asks when to end has been overtaken.
    endTargetTimeSheet();
    _previews->stop();
    _wuffTimer.invalidate();
    setColorForDisplayText(TextColor::Black, false);
    _timerStarted = true;

    _timeEntry->settle();
    const qint32 total = TimeFields::total(hours(), minutes(), seconds());
    const Date now = Date::now();
    if (_stopwatch) {
        const qint64 milliseconds = NumberText::integerFrom(_ui->_msLabel->text());
        _startDate = beginningOf(qint64(total) * 1000 + milliseconds, now);
        _targetDate = Date::distantFuture();
    } else {
        _startDate = now;
        _targetDate = now.addingTimeInterval(total);
        _initialTimeLeft = total;
    }

    setRunningControls(true, kGoButtonStop.toString());
    _checkTimer.startRepeating(kRunTick);
    _lastBeep = BeepSchedule::kNoBeepYet;
    const RunTimes times = timesAt(now);
    refreshDisplay(times.remaining, times.elapsed);
    // A looping timer fills the screen on its first pass only.
    if (_ui->_fullScreenBox->isChecked() && _repeatCount < 2) {
        _alarmNotification.expectActivation();
        setFullScreenMode(true);
    }
}

void Wuffer::stopRun()
{
    _wuffTimer.invalidate();
    setColorForDisplayText(TextColor::Black, false);
    _timerStarted = false;

    const RunTimes times = timesAt(Date::now());
    const double value = _stopwatch ? times.elapsed : times.remaining;
    refreshDisplay(value, times.elapsed);
    _checkTimer.invalidate();
    // What is left stays in the fields, so that the next start goes on from here.
    if (value > 0)
        setFieldsWithTimeLeft(value);
    setRunningControls(false, kGoButtonStart.toString());
}

void Wuffer::timerLoop()
{
    _refreshCount += static_cast<quint32>(_checkTimer.ticks());
    if (_refreshCount % kTicksPerStatus == 0) {
        postStatusChanged();
    } else if (_energySaverActive) {
        letOffIdleTicks();
        return;
    }
    // Whoever was told may have stopped the timer.
    if (!_checkTimer.isValid())
        return;

    const RunTimes times = timesAt(Date::now());
    if (_doneSound)
        _doneSound->setLoops(_ui->_keepWuffingBox->isChecked() && shouldKeepWuffing());
    if (times.remaining <= 0) {
        timerDone();
        return;
    }
    beepIfDue(times.remaining);
    refreshDisplay(times.remaining, times.elapsed);
    letOffIdleTicks();
}

RunTimes Wuffer::timesAt(Date moment) const
{
    return {_targetDate->timeIntervalSinceDate(moment), moment.timeIntervalSinceDate(*_startDate)};
}

void Wuffer::letOffIdleTicks()
{
    const bool rests = _displayRest.isUnseen() && timesAt(Date::now()).remaining > kLastSeconds;
    _displayRest.setResting(rests && !_energySaverActive);
    const quint32 others = kTicksPerStatus - 1 - _refreshCount % kTicksPerStatus;
    _checkTimer.letOff(rests || _energySaverActive ? static_cast<int>(others) : 0);
}

void Wuffer::beepIfDue(double remaining)
{
    if (_suppressCountdown || !BeepSchedule::isDue(remaining, _lastBeep))
        return;
    if (_beepSound)
        _beepSound->setVolume(BeepSchedule::volume(remaining));
    _lastBeep = remaining;
    playBeep();
}

void Wuffer::resetWuffer()
{
    _alarmNotification.answer();
    if (_timerStarted)
        goPressed();
    if (_stopwatch) {
        setFieldsWithTimeLeft(0);
        // Out of the mode and into it again, which is what clears the display.
        stopwatch();
        stopwatch();
    } else {
        setFieldsWithTimeLeft(_initialTimeLeft);
        setDefaultDisplayValues();
    }
}

void Wuffer::stopwatch()
{
    if (_timerStarted)
        return;
    _stopwatch = !_stopwatch;
    if (_stopwatch) {
        setFieldsWithTimeLeft(0);
        _ui->_elapsedLabel->setText(kStopwatchString.toString());
        _ui->_msLabel->setText({});
        setResultLabelText(QStringLiteral("0s"));
    } else {
        _ui->_elapsedLabel->setText({});
    }
    _ui->_finishedCombo->setEnabled(!_stopwatch);
    _ui->_finishedPicker->setEnabled(!_stopwatch);
    setColorForDisplayText(TextColor::Black, true);
    handleFinishedComboChange();
    refreshSoundComboEnabledness();
    Q_EMIT stateChanged();
}

bool Wuffer::shouldKeepWuffing() const
{
    return !_stopwatch && _ui->_finishedCombo->currentText() == kWufferFinishedNothing;
}

void Wuffer::toggleKeepWuffing()
{
    _ui->_keepWuffingBox->toggle();
    removePresetColor();
}

void Wuffer::setRunningControls(bool running, const QString &goTitle)
{
    _ui->_goButton->setText(goTitle);
    _ui->_goButton->setEnabled(true);
    if (running)
        _timeEntry->lock(*_ui->_goButton);
    else
        _timeEntry->unlock(*_ui->_goButton);
}

void Wuffer::postStatusChanged()
{
    NotificationCenter::defaultCenter().postNotificationName(QStringLiteral("statusChanged"), this);
}
