#pragma once
#include "platform/Sound.h"
class SilentSoundSystem final : public SoundSystem
{
public:
    std::unique_ptr<Sound> soundNamed(const QString &) override { return nullptr; }
    std::unique_ptr<Sound> soundWithContentsOfFile(const QString &) override { return nullptr; }
};
