#include "platform/LazySoundSystem.h"

#include <QCoreApplication>
#include <QLibrary>

namespace
{
/// Stands for a sound file when the module is missing; plays nothing.
class NoSound final : public Sound
{
public:
    explicit NoSound(QString name) : _name(std::move(name)) {}

    [[nodiscard]] QString name() const override { return _name; }
    [[nodiscard]] double duration() const override { return 0; }
    [[nodiscard]] bool isMissing() const override { return false; }
    void setWhenAnswered(std::function<void()> /*function*/) override {}
    void keep(std::unique_ptr<Sound> /*last*/) override {}
    [[nodiscard]] std::unique_ptr<Sound> takeKept() override { return nullptr; }
    void setStandIn(const QString & /*fileName*/) override {}
    void play() override {}
    void stop() override {}
    [[nodiscard]] bool isPlaying() const override { return false; }
    [[nodiscard]] float volume() const override { return 1; }
    void setVolume(float /*volume*/) override {}
    void setLoops(bool /*loops*/) override {}

private:
    const QString _name;
};

class NoSoundSystem final : public SoundSystem
{
public:
    std::unique_ptr<Sound> soundNamed(const QString & /*fileName*/) override { return nullptr; }
    bool canOpenFiles() override { return false; }
    std::unique_ptr<Sound> soundWithContentsOfFile(const QString &path) override
    {
        return std::make_unique<NoSound>(path);
    }
};

std::unique_ptr<SoundSystem> load(const QString &module)
{
    // Destroying a QLibrary does not unload the library.
    QLibrary library(module);
    using Make = SoundSystem *(*)();
    if (const auto make = reinterpret_cast<Make>(library.resolve("wufferMakeSoundSystem")))
        return std::unique_ptr<SoundSystem>(make());
    return std::make_unique<NoSoundSystem>();
}
} // namespace

LazySoundSystem::LazySoundSystem(QString module) : _module(std::move(module)) {}

LazySoundSystem::~LazySoundSystem() = default;

QString LazySoundSystem::standardModule()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/" WUFFER_SOUND_MODULE);
}

std::unique_ptr<Sound> LazySoundSystem::soundNamed(const QString &fileName)
{
    return system().soundNamed(fileName);
}

bool LazySoundSystem::canOpenFiles()
{
    return system().canOpenFiles();
}

std::unique_ptr<Sound> LazySoundSystem::soundWithContentsOfFile(const QString &path)
{
    return system().soundWithContentsOfFile(path);
}

SoundSystem &LazySoundSystem::system()
{
    if (!_system)
        _system = load(_module);
    return *_system;
}
