#pragma once

#include "base/Sound.h"

class SoundEngine;

/// The sounds of the running program. Destroying it silences its sounds, which may outlive it
/// but play no more.
class CubebSoundSystem final : public SoundSystem
{
public:
    CubebSoundSystem();
    Q_DISABLE_COPY_MOVE(CubebSoundSystem)
    ~CubebSoundSystem() override;

    [[nodiscard]] std::unique_ptr<Sound> soundNamed(const QString &fileName) override;
    [[nodiscard]] bool canOpenFiles() override { return true; }
    [[nodiscard]] std::unique_ptr<Sound> soundWithContentsOfFile(const QString &path) override;

private:
    std::shared_ptr<SoundEngine> _engine;
};
