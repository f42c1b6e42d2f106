#pragma once

#include "platform/sound/SoundBytes.h"
#include "platform/sound/SoundControls.h"
#include "platform/sound/Workers.h"

#include <map>
#include <memory>

class Output;
class Voice;

/// What all sounds of one system share: an output for each sample rate that was ever played, and
/// the threads. It costs nothing until the first sound is played. Main thread.
class SoundEngine final
{
public:
    SoundEngine() = default;
    Q_DISABLE_COPY_MOVE(SoundEngine)

    /// Silences everything; waits for the threads, but no longer than a second for those that are
    /// stuck in a sound server or a disk.
    ~SoundEngine();

    /// Begins to play a file that has so many frames a second.
    [[nodiscard]] std::shared_ptr<Voice> play(const OpenSoundBytes &open, int sampleRate,
                                              std::shared_ptr<const SoundControls> controls);

private:
    [[nodiscard]] Output &output(int sampleRate);

    Workers _workers;
    std::map<int, std::shared_ptr<Output>> _outputs;
};
