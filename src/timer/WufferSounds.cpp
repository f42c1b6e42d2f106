#include "platform/NotificationText.h"
#include "timer/SoundChoice.h"
#include "timer/Wuffer.h"
#include "ui_Wuffer.h"

namespace
{
/// True when the choice asks for another sound than this one.
bool asksForOther(const std::optional<QString> &path, const std::unique_ptr<Sound> &sound)
{
    return path && !path->isEmpty() && !(sound && sound->name() == *path);
}

void stop(const std::unique_ptr<Sound> &sound)
{
    if (sound)
        sound->stop();
}
} // namespace

std::unique_ptr<Sound> Wuffer::createSoundWithPath(const QString &path) const
{
    return soundForChoice(path);
}

void Wuffer::playDone()
{
    stop(_beepSound);
    stop(_doneSound);
    if (_soundOff)
        return;
    const std::optional<QString> path = _ui->_alarmSoundCombo->dataObjectOfSelectedItem();
    if (asksForOther(path, _doneSound)) {
        // An unreadable file leaves the last good alarm in its place.
        std::unique_ptr<Sound> sound = createSoundWithPath(*path);
        if (sound && sound->duration() != 0)
            _doneSound = std::move(sound);
    }
    if (_doneSound)
        _doneSound->play();
}

void Wuffer::playBeep()
{
    stop(_beepSound);
    const float volume = _beepSound ? _beepSound->volume() : 0.0F;
    if (_soundOff)
        return;
    const std::optional<QString> path = _ui->_countdownSoundCombo->dataObjectOfSelectedItem();
    if (asksForOther(path, _beepSound)) {
        std::unique_ptr<Sound> sound = createSoundWithPath(*path);
        if (sound && sound->duration() != 0) {
            _beepSound = std::move(sound);
            _beepSound->setVolume(volume);
        }
    }
    if (_beepSound)
        _beepSound->play();
}

void Wuffer::prepareSounds()
{
    if (_doneSound) {
        _doneSound->setVolume(0);
        _doneSound->play();
        _doneSound->stop();
        _doneSound->setVolume(1);
    }
    if (_beepSound) {
        _beepSound->setVolume(0);
        _beepSound->play();
        _beepSound->stop();
    }
}

void Wuffer::showGrowlNotification()
{
    const QString name = NotificationText::line(title());
    _alarmNotification.alarmBegan({.title = NotificationText::line(_finishedText),
                                   .text = name + QStringLiteral(": ") + _ui->_elapsedLabel->text(),
                                   .name = QStringLiteral("wuff"),
                                   .subject = name,
                                   .show = [this] { showWufferWindow(); },
                                   .stop =
                                       [this] {
                                           // Nothing to stop once the alarm is over.
                                           if (_wuffTimer.isValid())
                                               goPressed();
                                       }});
}
