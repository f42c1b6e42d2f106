#pragma once

#include "audio/BlockQueue.h"
#include "audio/SoundControls.h"

#include <QSemaphore>

#include <atomic>
#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <span>

class AudioFile;

/// Carries one file to the mixer of its sample rate, from the request until it has been heard or
/// stopped. Playing a file again takes a new voice, so that a stopped one never plays again.
///
/// Shared by its Playing, by the thread that reads its file, and by the mixer. Each voice has a
/// reading thread of its own, so that a disk that hangs delays no other sound.
class Voice final
{
public:
    /// A voice for a file with this sample rate. It is silent until the file delivers its first
    /// frame, and for every two seconds of waiting it calls the function. That runs on the mixing
    /// thread and must not block.
    Voice(int sampleRate, std::shared_ptr<const SoundControls> controls,
          std::function<void()> fileTimedOut);
    Q_DISABLE_COPY_MOVE(Voice)

    [[nodiscard]] int sampleRate() const { return _sampleRate; }

    /// True until the end has been heard or stop was called. Any thread.
    [[nodiscard]] bool isPlaying() const { return !_over && !_stopped; }

    /// Fades out within milliseconds. Any thread.
    void stop();

    /// Reads the first frames of a file without playing them yet; false if there are none. Call it
    /// once, before readOn().
    [[nodiscard]] bool begin(AudioFile &file);

    /// Plays the first frames, and reads the file over and over, as far ahead as the queue has
    /// room, until the voice has ended or was stopped.
    void readOn(AudioFile &file);

    /// Adds the next frames to those in the buffer (stereo, interleaved). The latency is the number
    /// of frames from mixing to hearing. False when the voice has ended. For the mixing thread.
    [[nodiscard]] bool mixInto(std::span<float> stereo, int latency);

    /// Ends the voice at once, without a fade. Any thread.
    void finish();

private:
    [[nodiscard]] bool readBlock(AudioFile &file);
    [[nodiscard]] bool waitForRoom();
    [[nodiscard]] std::size_t mixBlock(const BlockQueue::Block &block, std::span<float> stereo);
    void starve(std::size_t frames, bool readerIsDone);

    const int _sampleRate;
    const int _framesPerBlock;
    const std::shared_ptr<const SoundControls> _controls;
    const std::function<void()> _fileTimedOut;

    std::atomic<bool> _stopped = false;
    std::atomic<bool> _over = false;
    std::atomic<bool> _readerIsDone = false;
    QSemaphore _room;
    BlockQueue _queue;

    // Only the mixing thread uses the rest.
    std::size_t _played = 0; // frames of the front block
    std::size_t _starved = 0;
    std::optional<float> _gain; // empty before the first frame
    bool _ended = false;
    int _framesUntilHeard = std::numeric_limits<int>::max();
};
