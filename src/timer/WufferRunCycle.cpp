#include "base/Keys.h"
#include "base/NotificationCenter.h"
#include "rules/NumberText.h"
#include "rules/TimeFields.h"
#include "rules/TimeFormat.h"
#include "rules/TimerTexts.h"
#include "sounds/SoundPreviews.h"
#include "timer/AlarmAnnouncement.h"
#include "timer/TimeEntry.h"
#include "timer/Wuffer.h"
#include "timer/WufferWindow.h"
#include "ui_Wuffer.h"

namespace
{
/// With this many seconds left or fewer, a display out of sight skips no ticks: the beeps and the
/// end need them.
constexpr double kLastSeconds = 13.0;

/// The milliseconds in the label, from which a stopwatch continues; 0 if the label shows the
/// version or nothing.
qint32 shownMilliseconds(const Ui::Wuffer &controls)
{
    return NumberText::integerFrom(controls._msLabel->text());
}
} // namespace

void Wuffer::goPressed()
{
    _alarmNotification.answer();
    // If the press moves the focus to the button, screen readers read its title anyway.
    const bool focused = _ui->_goButton->hasFocus();
    toggleRun();
    if (focused)
        _ui->_goButton->sayTitle();
}

void Wuffer::toggleRun()
{
    if (_run.isStarted())
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
    // The start makes an open target date sheet obsolete.
    endTargetTimeSheet();
    _previews->stop();
    _wuffTimer.invalidate();
    setColorForDisplayText(TextColor::Black, false);

    _timeEntry->spreadFractions();
    const Date now = Date::now();
    _run.start(TimeFields::total(hours(), minutes(), seconds()), shownMilliseconds(*_ui), now);
    setRunningControls(true, TimerTexts::stop());
    _checkTimer.startRepeating(kRunTick);
    const RunTimes times = _run.timesAt(now);
    refreshDisplay(times.remaining, times.elapsed);
    // A looping timer fills the screen on its first pass only.
    if (_ui->_fullScreenBox->isChecked() && _run.repeatCount() < 2) {
        _alarmNotification.expectActivation();
        setFullScreenMode(true);
    }
}

void Wuffer::stopRun()
{
    if (_run.state() == TimerRun::State::Alarm)
        AlarmAnnouncement::ended(*this);
    _wuffTimer.invalidate();
    setColorForDisplayText(TextColor::Black, false);
    const TimerRun::Rest rest = _run.stop(Date::now());
    refreshDisplay(rest.value, rest.times.elapsed);
    _checkTimer.invalidate();
    // Keep the time in the fields, so that the next start continues from there.
    if (rest.value > 0)
        setFieldsWithTimeLeft(rest.value);
    setRunningControls(false, TimerTexts::start());
}

void Wuffer::timerLoop()
{
    if (_run.countTicks(_checkTimer.ticks())) {
        postStatusChanged();
    } else if (_energySaverActive) {
        skipIdleTicks();
        return;
    }
    // An observer of the notice may have stopped the timer.
    if (!_checkTimer.isValid())
        return;

    const RunTimes times = _run.timesAt(Date::now());
    if (_doneSound)
        _doneSound->setLoops(_ui->_keepWuffingBox->isChecked() && shouldKeepWuffing());
    if (times.remaining <= 0) {
        timerDone();
        return;
    }
    beepIfDue(times.remaining);
    refreshDisplay(times.remaining, times.elapsed);
    skipIdleTicks();
}

void Wuffer::skipIdleTicks()
{
    const bool rests =
        _displayRest.isUnseen() && _run.timesAt(Date::now()).remaining > kLastSeconds;
    _displayRest.setResting(rests && !_energySaverActive);
    _checkTimer.skipTicks(rests || _energySaverActive ? _run.ticksBeforeStatus() : 0);
}

void Wuffer::beepIfDue(double remaining)
{
    if (_suppressCountdown)
        return;
    const std::optional<float> volume = _run.takeBeep(remaining);
    if (!volume)
        return;
    if (_beepSound)
        _beepSound->setVolume(*volume);
    playBeep();
}

void Wuffer::resetWuffer()
{
    _alarmNotification.answer();
    if (_run.isStarted())
        goPressed();
    if (_run.isStopwatch()) {
        setFieldsWithTimeLeft(0);
        // Leaving stopwatch mode and entering it again clears the display.
        stopwatch();
        stopwatch();
    } else {
        setFieldsWithTimeLeft(_run.initialTimeLeft());
        setDefaultDisplayValues();
    }
}

void Wuffer::stopwatch()
{
    if (_run.isStarted())
        return;
    const bool stopwatch = !_run.isStopwatch();
    _run.setStopwatch(stopwatch);
    _ui->_displayBox->setShareLeft(0);
    if (stopwatch) {
        setFieldsWithTimeLeft(0);
        _ui->_elapsedLabel->setText(TimerTexts::stopwatch());
        _ui->_msLabel->setText({});
        setResultLabelText(TimeFormat::zero());
    } else {
        _ui->_elapsedLabel->setText({});
    }
    _ui->_finishedCombo->setEnabled(!stopwatch);
    _ui->_finishedPicker->setEnabled(!stopwatch);
    setColorForDisplayText(TextColor::Black, true);
    handleFinishedComboChange();
    refreshSoundComboEnabledness();
    Q_EMIT stateChanged();
}

bool Wuffer::shouldKeepWuffing() const
{
    return !_run.isStopwatch() && finishAction().allowsKeepWuffing;
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
    NotificationCenter::defaultCenter().postNotificationName(Notices::kStatusChanged, this);
}
