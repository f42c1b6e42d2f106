#include "platform/Sound.h"
#include "platform/UserDefaults.h"
#include "settings/WufferWindow.h"
#include "timer/NumberText.h"
#include "timer/TargetTimeSheet.h"
#include "timer/TimeFields.h"
#include "timer/Wuffer.h"
#include "ui_Wuffer.h"

double Wuffer::timeLeftFromFields() const
{
    return TimeFields::total(NumberText::integerFrom(_ui->_hoursField->text()),
                             NumberText::integerFrom(_ui->_minutesField->text()),
                             NumberText::integerFrom(_ui->_secondsField->text()));
}

void Wuffer::setFieldsWithTimeLeft(double timeLeft)
{
    const TimeFields fields = TimeFields::fromSeconds(timeLeft);
    _ui->_hoursField->setText(QString::number(fields.hours));
    _ui->_minutesField->setText(QString::number(fields.minutes));
    _ui->_secondsField->setText(NumberText::fromSeconds(fields.seconds));
}

void Wuffer::controlTextDidChange(const QLineEdit &field)
{
    if (&field == _ui->_titleField) {
        _window->setWindowTitle(field.text());
        // Return ends the name now instead of starting the timer.
        disableReturnShortcut();
    }
    removePresetColor();
}

void Wuffer::controlTextDidEndEditing(const QLineEdit &field)
{
    // Not at once: the Return that has ended the editing must not start the timer too.
    constexpr double returnPause = 0.01;
    if (&field == _ui->_titleField)
        _returnTimer.startOnce(returnPause);
}

void Wuffer::enableReturnShortcut()
{
    _window->setReturnShortcutEnabled(true);
}

void Wuffer::disableReturnShortcut()
{
    _returnTimer.invalidate();
    _window->setReturnShortcutEnabled(false);
}

void Wuffer::windowWillClose()
{
    if (_closed)
        return;
    setWindowed();
    endTargetTimeSheet();
    for (Sound *sound : {_doneSound.get(), _beepSound.get()}) {
        if (sound && sound->isPlaying())
            sound->stop();
    }
    // A running timer closes without a trace.
    if (_timerStarted) {
        _checkTimer.invalidate();
        _timerStarted = false;
    } else {
        saveSettingsToDefaultKey();
        UserDefaults::standardUserDefaults().synchronize();
    }
    _closed = true;
    postStatusChanged();
    Q_EMIT stateChanged();
    Q_EMIT closed();
}
