#include "rules/NotificationText.h"
#include "rules/SoundEntries.h"
#include "rules/TimerTexts.h"
#include "sounds/SoundChoice.h"
#include "timer/Wuffer.h"
#include "ui_Wuffer.h"

namespace
{
/// Whether the choice is another sound than this one.
bool asksForOther(const std::optional<QString> &path, const std::unique_ptr<Sound> &sound)
{
    return path && !path->isEmpty() && !(sound && sound->name() == *path);
}

/// The sound that replaces the last one for this choice; null to keep the last one. If a file
/// cannot be opened, the last sound stays, or else the built-in one is taken. The built-in sound
/// also stands in for a file that turns out to be broken later.
std::unique_ptr<Sound> newSound(const Wuffer &timer, const std::optional<QString> &path,
                                SoundEntry builtIn, const std::unique_ptr<Sound> &last)
{
    if (!asksForOther(path, last))
        return nullptr;
    const SoundEntries::Row &row = SoundEntries::row(builtIn);
    std::unique_ptr<Sound> sound = timer.createSoundWithPath(*path);
    if (!sound || sound->duration() == 0)
        return last ? nullptr : timer.createSoundWithPath(row.stored.toString());
    sound->setStandIn(row.fileName.toString());
    return sound;
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
    if (std::unique_ptr<Sound> sound = newSound(*this, path, SoundEntry::Wuff, _doneSound))
        _doneSound = std::move(sound);
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
    if (std::unique_ptr<Sound> sound = newSound(*this, path, SoundEntry::Crow, _beepSound)) {
        _beepSound = std::move(sound);
        _beepSound->setVolume(volume);
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
                                   .text = TimerTexts::nameAndStatus(name, durationText()),
                                   .name = QStringLiteral("wuff"),
                                   .subject = name,
                                   .show = [this] { showWufferWindow(); },
                                   .stop =
                                       [this] {
                                           // After the alarm there is nothing to stop.
                                           if (_run.state() == TimerRun::State::Alarm)
                                               goPressed();
                                       }});
}
