#pragma once

#include "audio/SoundControls.h"
#include "audio/SoundSource.h"
#include "base/Sound.h"

#include <QDeadlineTimer>

class FactsReader;
class Playing;
class SoundEngine;

/// A sound that a SoundEngine plays.
///
/// Until its file has answered, a playback only waits: it goes on with the file, or with the kept
/// sound, when the facts of the file are known.
class EngineSound final : public Sound
{
public:
    enum class Place { File, Program };

    /// Opens the source once, to read its facts: a file on another thread, a sound of the program
    /// at once.
    EngineSound(SoundSource source, Place place, std::weak_ptr<SoundEngine> engine);
    Q_DISABLE_COPY_MOVE(EngineSound)
    ~EngineSound() override;

    [[nodiscard]] QString name() const override { return _source.name; }
    [[nodiscard]] double duration() const override { return _facts.duration; }
    [[nodiscard]] bool isMissing() const override { return _facts.isMissing; }
    void setWhenAnswered(std::function<void()> function) override;
    void keep(std::unique_ptr<Sound> last) override;
    [[nodiscard]] std::unique_ptr<Sound> takeKept() override;
    void setStandIn(const QString &fileName) override;
    void play() override;
    void stop() override;
    [[nodiscard]] bool isPlaying() const override;
    [[nodiscard]] float volume() const override { return _controls->volume; }
    void setVolume(float volume) override;
    void setLoops(bool loops) override { _controls->loops = loops; }

private:
    void askFile();
    void takeAnswer(const SoundFacts &facts);

    const SoundSource _source;
    OpenSoundBytes _standIn;
    const std::weak_ptr<SoundEngine> _engine;
    const std::shared_ptr<SoundControls> _controls;
    SoundFacts _facts;
    /// How long a playback waits for the file.
    const QDeadlineTimer _patience{kPatienceForFiles};
    std::unique_ptr<FactsReader> _reader;
    std::function<void()> _whenAnswered;
    std::unique_ptr<EngineSound> _kept;
    std::shared_ptr<Playing> _playing;
};
