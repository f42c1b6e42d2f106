#include "audio/EngineSound.h"

#include "audio/AudioFile.h"
#include "audio/Playing.h"
#include "audio/SoundEngine.h"

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

void EngineSound::setStandIn(const QString &fileName)
{
    _standIn = [fileName] { return openSoundResource(fileName); };
}

void EngineSound::play()
{
    const std::shared_ptr<SoundEngine> engine = _engine.lock();
    if (engine && _duration > 0 && !isPlaying())
        _playing = engine->play(_open, _sampleRate, _controls, _standIn);
}

void EngineSound::stop()
{
    if (_playing)
        _playing->stop();
    _playing.reset();
}

bool EngineSound::isPlaying() const
{
    return _playing && _playing->isPlaying();
}

void EngineSound::setVolume(float volume)
{
    _controls->volume = std::isnan(volume) ? 0.0F : std::clamp(volume, 0.0F, 1.0F);
}
