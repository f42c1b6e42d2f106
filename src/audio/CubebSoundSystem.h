#pragma once

#include "base/Sound.h"

class SoundEngine;

/// The sounds of the running program, played with cubeb. Destroying it silences its sounds; they
/// may outlive it, but then play() has no effect.
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
