#include "audio/CubebSoundSystem.h"

#include "audio/EngineSound.h"
#include "audio/SoundBytes.h"
#include "audio/SoundEngine.h"

CubebSoundSystem::CubebSoundSystem() : _engine(std::make_shared<SoundEngine>()) {}

CubebSoundSystem::~CubebSoundSystem() = default;

std::unique_ptr<Sound> CubebSoundSystem::soundNamed(const QString &fileName)
{
    if (!openSoundResource(fileName))
        return nullptr;
    const SoundSource source{fileName, [fileName] { return openSoundResource(fileName); }};
    return std::make_unique<EngineSound>(source, EngineSound::Place::Program, _engine);
}

std::unique_ptr<Sound> CubebSoundSystem::soundWithContentsOfFile(const QString &path)
{
    const SoundSource source{path, [path] { return openSoundFile(path); }};
    return std::make_unique<EngineSound>(source, EngineSound::Place::File, _engine);
}
