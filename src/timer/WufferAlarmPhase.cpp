#include "base/Desktop.h"
#include "base/Service.h"
#include "rules/TimeFormat.h"
#include "rules/TimerTexts.h"
#include "sounds/SoundPreviews.h"
#include "timer/AlarmAnnouncement.h"
#include "timer/TimerHost.h"
#include "timer/Wuffer.h"
#include "timer/WufferWindow.h"
#include "ui_Wuffer.h"

namespace
{
/// Seconds between two checks whether the alarm is over.
constexpr double kAlarmTick = 0.2;
/// A muted alarm lasts at least this many seconds.
constexpr double kMutedAlarm = 5.0;
} // namespace

void Wuffer::timerDone()
{
    if (_host.cancelFullScreenModeForOthers(*this))
        _alarmNotification.expectActivation();
    _previews->stop();
    playDone();
    _checkTimer.invalidate();
    _run.beginAlarm();
    _displayRest.setResting(false);
    setColorForDisplayText(TextColor::Red, true);
    setResultLabelText(_finishedText);
    _ui->_displayBox->setShareLeft(1);
    _ui->_msLabel->setText({});
    _ui->_elapsedLabel->setText(durationText());
    _wuffTimer.startRepeating(kAlarmTick);
    _ui->_goButton->setText(TimerTexts::reset());
    // The user cannot hear a muted alarm, so the window requests attention.
    if (_soundOff)
        Service<Desktop>::current().requestUserAttention(*_window);
    if (!_disableGrowl)
        showGrowlNotification();
    AlarmAnnouncement::began(*this, _finishedText);
    postStatusChanged();
    Q_EMIT stateChanged();
}

void Wuffer::wuffLoop()
{
    if (_soundOff && -_run.targetDate()->timeIntervalSinceNow() < kMutedAlarm)
        return;
    // During the alarm only the box decides, so that the user can still tick and untick it.
    if (_doneSound)
        _doneSound->setLoops(_ui->_keepWuffingBox->isChecked());

    const bool nothingFollows = finishAction().action == FinishAction::Nothing && !isChained();
    // A muted timer after which nothing runs stays in its alarm until the user stops it.
    if (nothingFollows && _soundOff)
        return;
    if (!_soundOff && _doneSound && _doneSound->isPlaying())
        return;
    _wuffTimer.invalidate();
    if (!_run.isStarted())
        return;

    _alarmNotification.alarmEnded();
    toggleRun();
    // An observer of the stop may have closed the window.
    if (_closed)
        return;
    if (finishAction().runs != FinishActions::Runs::ThisTimer)
        giveUpFullScreen();
    if (!nothingFollows)
        handleFinishedBehaviour();
    refreshChainStatusForAllChainedWuffers();
    Q_EMIT stateChanged();
}

QString Wuffer::durationText() const
{
    return _run.withRepeatCount(TimeFormat::stringForTime(_run.duration()));
}
