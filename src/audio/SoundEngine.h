#pragma once

#include "audio/SoundBytes.h"
#include "audio/SoundControls.h"
#include "audio/Workers.h"

#include <memory>

class Outputs;
class Playing;

/// The outputs and the threads that all sounds of one system share. It opens no device and starts
/// no thread until the first sound is played. Main thread.
class SoundEngine final
{
public:
    SoundEngine();
    Q_DISABLE_COPY_MOVE(SoundEngine)

    /// Silences everything and waits for the threads, but no longer than a second for those that
    /// hang in the sound server or on a disk.
    ~SoundEngine();

    /// Begins to play a file that is expected to have this sample rate. If it yields no frame, the
    /// stand-in is played, if there is one.
    [[nodiscard]] std::shared_ptr<Playing> play(const OpenSoundBytes &open, int sampleRate,
                                                std::shared_ptr<const SoundControls> controls,
                                                const OpenSoundBytes &standIn = {});

private:
    Workers _workers;
    std::shared_ptr<Outputs> _outputs;
};
