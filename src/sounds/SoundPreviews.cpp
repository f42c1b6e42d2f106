#include "sounds/SoundPreviews.h"

SoundPreviews::SoundPreviews(Place alarm, Place countdown) :
    _alarm(alarm.button, alarm.combo), _countdown(countdown.button, countdown.combo)
{
    for (const SoundPreview *each : {&_alarm, &_countdown})
        connect(each, &SoundPreview::starting, this, &SoundPreviews::stop);
}

void SoundPreviews::stop()
{
    _alarm.stop();
    _countdown.stop();
}

void SoundPreviews::setEnabled(bool alarm, bool countdown)
{
    _alarm.setEnabled(alarm);
    _countdown.setEnabled(countdown);
}

void SoundPreviews::followChoices()
{
    _alarm.followChoice();
    _countdown.followChoice();
}
