#include "platform/sound/EngineSound.h"

#include "platform/sound/AudioFile.h"
#include "platform/sound/SoundEngine.h"
#include "platform/sound/Voice.h"

#include <algorithm>
#include <cmath>

EngineSound::EngineSound(QString name, OpenSoundBytes open, std::weak_ptr<SoundEngine> engine) :
    _name(std::move(name)), _open(std::move(open)), _engine(std::move(engine)),
    _controls(std::make_shared<SoundControls>())
{
    if (const std::unique_ptr<AudioFile> file = AudioFile::open(_open())) {
        _duration = file->duration();
        _sampleRate = file->sampleRate();
    }
}

EngineSound::~EngineSound()
{
    stop();
}

void EngineSound::play()
{
    const std::shared_ptr<SoundEngine> engine = _engine.lock();
    if (engine && _duration > 0 && !isPlaying())
        _voice = engine->play(_open, _sampleRate, _controls);
}

void EngineSound::stop()
{
    if (_voice)
        _voice->stop();
    _voice.reset();
}

bool EngineSound::isPlaying() const
{
    return _voice && _voice->isPlaying();
}

void EngineSound::setVolume(float volume)
{
    _controls->volume = std::isnan(volume) ? 0.0F : std::clamp(volume, 0.0F, 1.0F);
}
