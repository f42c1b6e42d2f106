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

/// One playing of one sound, from the request until its end has been heard or it was silenced. If
/// the file turns out to be nothing that can be heard, or does not answer, another stands in for
/// it.
///
/// A file is opened on a thread of its own, and only there it shows at which sample rate it is to
/// be heard. So a playing begins with a voice for the rate that is expected, and goes on with
/// another voice where need be. It plays without a gap from the first to the last.
class Playing final : public std::enable_shared_from_this<Playing>
{
public:
    /// Plays the first bytes, or else those of the stand-in, which may be missing.
    Playing(OpenSoundBytes open, OpenSoundBytes standIn,
            std::shared_ptr<const SoundControls> controls, std::shared_ptr<Outputs> outputs,
            Workers workers);
    Q_DISABLE_COPY_MOVE(Playing)

    /// Begins to play; the file probably has so many frames a second. Once.
    void start(int sampleRate);

    /// True from the start until the end has been heard or stop was called. Any thread.
    [[nodiscard]] bool isPlaying() const;

    /// Fades within milliseconds. Any thread.
    void stop();

private:
    [[nodiscard]] std::shared_ptr<Voice> makeVoice(int sampleRate);
    [[nodiscard]] std::shared_ptr<Voice> currentVoice() const;
    [[nodiscard]] bool decide() { return !_isDecided.exchange(true); }
    void playFile(std::shared_ptr<Voice> voice);
    void missFile();
    void playStandIn();
    void readOn(AudioFile &file, const std::shared_ptr<Voice> &voice);
    void goOnWith(const std::shared_ptr<Voice> &voice);

    const OpenSoundBytes _open;
    const OpenSoundBytes _standIn;
    const std::shared_ptr<const SoundControls> _controls;
    const std::shared_ptr<Outputs> _outputs;
    Workers _workers;

    /// Whether it is settled what is heard, the file or its stand-in.
    std::atomic<bool> _isDecided = false;

    mutable std::mutex _mutex;
    std::shared_ptr<Voice> _voice;
    bool _isStopped = false;
};
