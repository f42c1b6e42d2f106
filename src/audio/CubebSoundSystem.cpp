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
    return std::make_unique<EngineSound>(
        fileName, [fileName] { return openSoundResource(fileName); }, _engine);
}

std::unique_ptr<Sound> CubebSoundSystem::soundWithContentsOfFile(const QString &path)
{
    return std::make_unique<EngineSound>(
        path, [path] { return openSoundFile(path); }, _engine);
}
