#pragma once

#include "audio/SoundBytes.h"
#include "audio/SoundControls.h"
#include "base/Sound.h"

class Playing;
class SoundEngine;

/// A sound that a SoundEngine plays.
class EngineSound final : public Sound
{
public:
    /// Opens the bytes once, to read the length and the sample rate.
    EngineSound(QString name, OpenSoundBytes open, std::weak_ptr<SoundEngine> engine);
    Q_DISABLE_COPY_MOVE(EngineSound)
    ~EngineSound() override;

    [[nodiscard]] QString name() const override { return _name; }
    [[nodiscard]] double duration() const override { return _duration; }
    void setStandIn(const QString &fileName) override;
    void play() override;
    void stop() override;
    [[nodiscard]] bool isPlaying() const override;
    [[nodiscard]] float volume() const override { return _controls->volume; }
    void setVolume(float volume) override;
    void setLoops(bool loops) override { _controls->loops = loops; }

private:
    const QString _name;
    const OpenSoundBytes _open;
    OpenSoundBytes _standIn;
    const std::weak_ptr<SoundEngine> _engine;
    const std::shared_ptr<SoundControls> _controls;
    double _duration = 0;
    int _sampleRate = 0;
    std::shared_ptr<Playing> _playing;
};
