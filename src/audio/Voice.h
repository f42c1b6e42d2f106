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

/// One file on its way to the mixer of its sample rate, from the request until it has been heard or
/// silenced. Playing a file again takes another voice, so that nothing can revive one that was
/// stopped.
///
/// Shared by the playing that it belongs to, by the thread that reads its file, and by the mixer.
/// The thread is the voice's own, so that a disk that does not answer keeps no other sound waiting.
class Voice final
{
public:
    /// A voice for a file of so many frames a second. While the file delivers nothing at all the
    /// voice is silent, and after each time that a file is waited for it calls the function, on the
    /// mixing thread, which must not be kept.
    Voice(int sampleRate, std::shared_ptr<const SoundControls> controls,
          std::function<void()> fileIsMissed);
    Q_DISABLE_COPY_MOVE(Voice)

    [[nodiscard]] int sampleRate() const { return _sampleRate; }

    /// True until the end has been heard or stop was called. Any thread.
    [[nodiscard]] bool isPlaying() const { return !_over && !_stopped; }

    /// Fades within milliseconds. Any thread.
    void stop();

    /// Reads the first frames of a file, which are not to be heard yet; false when there are none.
    /// Once, and before readOn().
    [[nodiscard]] bool begin(AudioFile &file);

    /// Lets the first frames be heard, and reads the file over and over, as far ahead as there is
    /// room, until the voice is over.
    void readOn(AudioFile &file);

    /// Adds the next frames to those in the buffer (stereo, interleaved). A frame is heard so
    /// many frames after it was mixed. False when the voice is over. For the mixing thread.
    [[nodiscard]] bool mixInto(std::span<float> stereo, int heardAfter);

    /// Ends the voice whatever it is doing. Any thread.
    void finish();

private:
    [[nodiscard]] bool readBlock(AudioFile &file);
    [[nodiscard]] bool waitForRoom();
    [[nodiscard]] std::size_t mixBlock(const BlockQueue::Block &block, std::span<float> stereo);
    void starve(std::size_t frames, bool readerIsDone);

    const int _sampleRate;
    const int _framesPerBlock;
    const std::shared_ptr<const SoundControls> _controls;
    const std::function<void()> _fileIsMissed;

    std::atomic<bool> _stopped = false;
    std::atomic<bool> _over = false;
    std::atomic<bool> _readerIsDone = false;
    QSemaphore _room;
    BlockQueue _queue;

    // The rest belongs to the mixing thread.
    std::size_t _played = 0; // frames of the front block
    std::size_t _starved = 0;
    std::optional<float> _gain; // none before the first frame
    bool _ended = false;
    int _unheard = std::numeric_limits<int>::max();
};
