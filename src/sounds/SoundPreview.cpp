#include "sounds/SoundPreview.h"

#include "base/Desktop.h"
#include "base/Service.h"
#include "controls/DataComboBox.h"
#include "controls/PlayButton.h"
#include "sounds/SoundChoice.h"

SoundPreview::SoundPreview(PlayButton &button, const DataComboBox &combo) :
    _button(button), _combo(combo)
{
    connect(&button, &QToolButton::clicked, this, &SoundPreview::playOrStop);
    connect(&combo, &QComboBox::currentIndexChanged, this, &SoundPreview::followChoice);
}

SoundPreview::~SoundPreview() = default;

void SoundPreview::stop()
{
    _endTimer.invalidate();
    _sound.reset();
    _button.setPlaying(false);
}

void SoundPreview::setEnabled(bool enabled)
{
    if (!enabled)
        stop();
    _button.setEnabled(enabled);
}

void SoundPreview::followChoice()
{
    if (_sound && choice() != _choice)
        stop();
}

QString SoundPreview::choice() const
{
    return _combo.dataObjectOfSelectedItem().value_or(QString());
}

void SoundPreview::playOrStop()
{
    if (_sound)
        stop();
    else
        play();
}

void SoundPreview::play()
{
    constexpr double secondsBetweenChecks = 0.1;
    Q_EMIT starting();
    _choice = choice();
    std::unique_ptr<Sound> sound = soundForChoice(_choice);
    if (!sound || sound->duration() == 0) {
        Service<Desktop>::current().beep();
        return;
    }
    _sound = std::move(sound);
    _sound->play();
    _button.setPlaying(true);
    _endTimer.startRepeating(secondsBetweenChecks);
}

void SoundPreview::stopAtEnd()
{
    if (_sound->isPlaying())
        return;
    // The file has turned out to be unplayable, or has not answered for too long.
    if (_sound->duration() == 0 || !_sound->hasAnswered())
        Service<Desktop>::current().beep();
    stop();
}
