#pragma once

#include "platform/sound/BlockQueue.h"
#include "platform/sound/SoundBytes.h"
#include "platform/sound/SoundControls.h"

#include <QSemaphore>

#include <atomic>
#include <limits>
#include <memory>
#include <optional>
#include <span>

class AudioFile;

/// One playing of one sound, from the request until it has been heard or silenced. Playing the
/// sound again takes another voice, so that nothing can revive one that was stopped.
///
/// Shared by the sound that asked for it, by the thread that reads its file, which is its own so
/// that a disk that does not answer keeps nobody else waiting, and by the mixer.
class Voice final
{
public:
    /// A voice for a file that has so many frames a second.
    Voice(OpenSoundBytes open, int sampleRate, std::shared_ptr<const SoundControls> controls);
    Q_DISABLE_COPY_MOVE(Voice)

    /// True until the end has been heard or stop was called. Any thread.
    [[nodiscard]] bool isPlaying() const { return !_over && !_stopped; }

    /// Fades within milliseconds. Any thread.
    void stop();

    /// Reads the file over and over, as far ahead as there is room, until the voice is over.
    void readFile();

    /// Adds the next frames to those in the buffer (stereo, interleaved). A frame is heard so
    /// many frames after it was mixed. False when the voice is over. For the mixing thread.
    [[nodiscard]] bool mixInto(std::span<float> stereo, int heardAfter);

    /// Ends the voice whatever it is doing. For the mixing thread.
    void finish();

private:
    [[nodiscard]] bool readBlock(AudioFile &file, bool &passIsEmpty);
    [[nodiscard]] std::size_t mixBlock(const BlockQueue::Block &block, std::span<float> stereo);
    void starve(std::size_t frames, bool readerIsDone);

    const OpenSoundBytes _open;
    const int _sampleRate;
    const int _framesPerBlock;
    const std::shared_ptr<const SoundControls> _controls;

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
