#pragma once

#include "base/Sound.h"

/// Loads the module with the sound system for the first sound, which takes 4 ms. Until then the
/// program saves the 2 MiB of memory that the module's libraries take. Without the module there are
/// no sounds. Main thread.
class LazySoundSystem final : public SoundSystem
{
public:
    /// Takes the path of the module without the file extension.
    explicit LazySoundSystem(QString module = standardModule());
    ~LazySoundSystem() override;
    Q_DISABLE_COPY_MOVE(LazySoundSystem)

    /// The path of the module. It is the same relative to the program in the build and installed.
    [[nodiscard]] static QString standardModule();

    [[nodiscard]] std::unique_ptr<Sound> soundNamed(const QString &fileName) override;
    [[nodiscard]] bool canOpenFiles() override;
    [[nodiscard]] std::unique_ptr<Sound> soundWithContentsOfFile(const QString &path) override;

private:
    [[nodiscard]] SoundSystem &system();

    const QString _module;
    std::unique_ptr<SoundSystem> _system;
};
