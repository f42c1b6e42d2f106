#include "audio/EngineSound.h"

#include "audio/FactsReader.h"
#include "audio/Playing.h"
#include "audio/SoundEngine.h"

#include <algorithm>
#include <cmath>
#include <utility>

EngineSound::EngineSound(SoundSource source, Place place, std::weak_ptr<SoundEngine> engine) :
    _source(std::move(source)), _engine(std::move(engine)),
    _controls(std::make_shared<SoundControls>())
{
    if (place == Place::File)
        askFile();
    else
        _facts = SoundFacts::read(_source);
}

EngineSound::~EngineSound()
{
    stop();
}

void EngineSound::askFile()
{
    if (const std::shared_ptr<SoundEngine> engine = _engine.lock())
        _reader = engine->read(_source, [this](const SoundFacts &facts) { takeAnswer(facts); });
}

void EngineSound::takeAnswer(const SoundFacts &facts)
{
    _facts = facts;
    if (_playing && facts.duration > 0)
        _playing->goOn(_source.open);
    else if (_playing)
        _playing->goOn(_kept ? _kept->_source.open : OpenSoundBytes());
    // Last, because the function may destroy this sound.
    if (const auto whenAnswered = std::exchange(_whenAnswered, {}))
        whenAnswered();
}

void EngineSound::setWhenAnswered(std::function<void()> function)
{
    if (!hasAnswered())
        _whenAnswered = std::move(function);
}

void EngineSound::keep(std::unique_ptr<Sound> last)
{
    auto *const sound = dynamic_cast<EngineSound *>(last.get());
    Q_ASSERT(sound || !last);
    static_cast<void>(last.release());
    _kept.reset(sound);
}

std::unique_ptr<Sound> EngineSound::takeKept()
{
    return std::move(_kept);
}

void EngineSound::setStandIn(const QString &fileName)
{
    _standIn = [fileName] { return openSoundResource(fileName); };
}

void EngineSound::play()
{
    const std::shared_ptr<SoundEngine> engine = _engine.lock();
    if (!engine || _facts.duration == 0 || isPlaying())
        return;
    if (hasAnswered()) {
        _playing = engine->play(_source, _facts.sampleRate, _controls, _standIn);
        return;
    }
    // Too many threads may have hung in the file when the sound was made.
    if (!_reader)
        askFile();
    _playing = engine->playLater(_controls, _standIn);
    // A file that has not answered for so long is not waited for at each beep of a countdown.
    if (_patience.hasExpired())
        _playing->goOn(_standIn);
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
