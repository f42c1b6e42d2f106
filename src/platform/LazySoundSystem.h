#pragma once

#include "base/Sound.h"

/// Loads the sound system when the first sound is asked for, which takes 4 ms. Sound brings many
/// libraries, 2 MiB of memory that an open window does without. Where the module with the sound
/// system is missing, there are no sounds. Main thread.
class LazySoundSystem final : public SoundSystem
{
public:
    /// With the path of the module, without the ending of its name.
    explicit LazySoundSystem(QString module = standardModule());
    ~LazySoundSystem() override;
    Q_DISABLE_COPY_MOVE(LazySoundSystem)

    /// The module at its place beside the program, both in the build and where it is installed.
    [[nodiscard]] static QString standardModule();

    [[nodiscard]] std::unique_ptr<Sound> soundNamed(const QString &fileName) override;
    [[nodiscard]] bool canOpenFiles() override;
    [[nodiscard]] std::unique_ptr<Sound> soundWithContentsOfFile(const QString &path) override;

private:
    [[nodiscard]] SoundSystem &system();

    const QString _module;
    std::unique_ptr<SoundSystem> _system;
};
