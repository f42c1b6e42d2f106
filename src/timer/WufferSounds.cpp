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

/// Gives up a sound whose file has turned out to be unplayable since it was chosen, for the one
/// before it.
void takeBackLast(std::unique_ptr<Sound> &sound)
{
    if (!sound || !sound->hasAnswered())
        return;
    std::unique_ptr<Sound> last = sound->takeKept();
    if (sound->duration() == 0)
        sound = std::move(last);
}

/// Replaces the sound if the choice is another one. If a file cannot be opened, the last sound
/// stays, or else the built-in one is taken; as long as a file has not answered, its sound keeps
/// the last good one. The built-in sound also stands in for a file that turns out to be broken
/// later.
void update(std::unique_ptr<Sound> &sound, const Wuffer &timer, const std::optional<QString> &path,
            SoundEntry builtIn)
{
    takeBackLast(sound);
    if (!asksForOther(path, sound))
        return;
    const SoundEntries::Row &row = SoundEntries::row(builtIn);
    std::unique_ptr<Sound> next = timer.createSoundWithPath(*path);
    if (!next || next->duration() == 0) {
        if (!sound)
            sound = timer.createSoundWithPath(row.stored.toString());
        return;
    }
    next->setStandIn(row.fileName.toString());
    if (!next->hasAnswered())
        next->keep(sound && !sound->hasAnswered() ? sound->takeKept() : std::move(sound));
    sound = std::move(next);
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
    update(_doneSound, *this, path, SoundEntry::Wuff);
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
    update(_beepSound, *this, path, SoundEntry::Crow);
    if (_beepSound) {
        _beepSound->setVolume(volume);
        _beepSound->play();
    }
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
