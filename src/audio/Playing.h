#pragma once

#include "audio/Openings.h"
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
/// begins with a voice for the expected rate, or with an unheard voice if no rate is expected, and
/// switches to another voice if the rate differs. isPlaying() stays true during the switch.
class Playing final : public std::enable_shared_from_this<Playing>
{
public:
    /// Takes the stand-in, which may be empty.
    Playing(OpenSoundBytes standIn, std::shared_ptr<const SoundControls> controls,
            std::shared_ptr<Outputs> outputs, Workers workers);
    Q_DISABLE_COPY_MOVE(Playing)

    /// Begins to play these bytes with a voice for the expected sample rate. The ticket is kept
    /// until the file has delivered its first frames; without one the bytes are not opened, as if
    /// they did not answer. Call either this or wait(), once.
    void start(const OpenSoundBytes &open, int sampleRate, Openings::Ticket ticket);

    /// Begins with an unheard voice that waits for goOn().
    void wait();

    /// Plays these bytes, or the stand-in if there are none, unless the wait has taken too long.
    /// Call it at most once, after wait().
    void goOn(const OpenSoundBytes &open);

    /// True from the start until the end has been heard or stop was called. Any thread.
    [[nodiscard]] bool isPlaying() const;

    /// Fades out within milliseconds. Any thread.
    void stop();

private:
    [[nodiscard]] std::shared_ptr<Voice> makeVoice(int sampleRate);
    [[nodiscard]] std::shared_ptr<Voice> currentVoice() const;
    /// True for the first caller only, which then plays the file or its stand-in.
    [[nodiscard]] bool decide() { return !_isDecided.exchange(true); }
    void playFile(const OpenSoundBytes &open, std::shared_ptr<Voice> voice,
                  Openings::Ticket ticket);
    void fileTimedOut();
    void playStandIn();
    void readOn(AudioFile &file, const std::shared_ptr<Voice> &voice);
    void switchTo(const std::shared_ptr<Voice> &voice);

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
