#pragma once

#include "audio/SoundBytes.h"
#include "audio/SoundControls.h"
#include "audio/Workers.h"

#include <memory>

class Outputs;
class Playing;

/// What all sounds of one system share: the outputs and the threads. It costs nothing until the
/// first sound is played. Main thread.
class SoundEngine final
{
public:
    SoundEngine();
    Q_DISABLE_COPY_MOVE(SoundEngine)

    /// Silences everything; waits for the threads, but no longer than a second for those that are
    /// stuck in a sound server or a disk.
    ~SoundEngine();

    /// Begins to play a file that has so many frames a second. If it yields not one frame, the
    /// stand-in is played, which may be missing.
    [[nodiscard]] std::shared_ptr<Playing> play(const OpenSoundBytes &open, int sampleRate,
                                                std::shared_ptr<const SoundControls> controls,
                                                const OpenSoundBytes &standIn = {});

private:
    Workers _workers;
    std::shared_ptr<Outputs> _outputs;
};
