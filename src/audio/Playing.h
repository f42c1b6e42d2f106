#pragma once

#include "audio/SoundBytes.h"
#include "audio/SoundControls.h"
#include "audio/Workers.h"

#include <atomic>
#include <memory>
#include <mutex>

class AudioFile;
class Outputs;
class Voice;

/// One playback of one sound, from the request until its end has been heard or it was stopped. If
/// the file turns out to be unplayable, or delivers nothing in time, a stand-in is played.
///
/// The file is opened on a thread of its own, and its sample rate is known only then. So a playback
/// begins with a voice for the expected rate and switches to another voice if the rate differs.
/// isPlaying() stays true during the switch.
class Playing final : public std::enable_shared_from_this<Playing>
{
public:
    /// Plays the bytes that open gives, or else those of standIn, which may be empty.
    Playing(OpenSoundBytes open, OpenSoundBytes standIn,
            std::shared_ptr<const SoundControls> controls, std::shared_ptr<Outputs> outputs,
            Workers workers);
    Q_DISABLE_COPY_MOVE(Playing)

    /// Begins to play with a voice for the expected sample rate. Call it once.
    void start(int sampleRate);

    /// True from the start until the end has been heard or stop was called. Any thread.
    [[nodiscard]] bool isPlaying() const;

    /// Fades out within milliseconds. Any thread.
    void stop();

private:
    [[nodiscard]] std::shared_ptr<Voice> makeVoice(int sampleRate);
    [[nodiscard]] std::shared_ptr<Voice> currentVoice() const;
    /// True for the first caller only, which then plays the file or its stand-in.
    [[nodiscard]] bool decide() { return !_isDecided.exchange(true); }
    void playFile(std::shared_ptr<Voice> voice);
    void fileTimedOut();
    void playStandIn();
    void readOn(AudioFile &file, const std::shared_ptr<Voice> &voice);
    void switchTo(const std::shared_ptr<Voice> &voice);

    const OpenSoundBytes _open;
    const OpenSoundBytes _standIn;
    const std::shared_ptr<const SoundControls> _controls;
    const std::shared_ptr<Outputs> _outputs;
    Workers _workers;

    /// Whether it is decided which is played, the file or its stand-in.
    std::atomic<bool> _isDecided = false;

    mutable std::mutex _mutex;
    std::shared_ptr<Voice> _voice;
    bool _isStopped = false;
};
