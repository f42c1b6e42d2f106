#pragma once

#include "audio/FactsReader.h"
#include "audio/Openings.h"
#include "audio/SoundControls.h"
#include "audio/SoundSource.h"
#include "audio/Workers.h"

#include <memory>

class Outputs;
class Playing;

/// The outputs and the threads that all sounds of one system share. It opens no device until the
/// first sound is played. No operation waits for a file or for the sound server. Main thread.
class SoundEngine final
{
public:
    SoundEngine();
    Q_DISABLE_COPY_MOVE(SoundEngine)

    /// Silences everything and waits for the threads, but no longer than a second for those that
    /// hang in the sound server or on a disk.
    ~SoundEngine();

    /// Begins to read the facts of a file, and tells them later unless the reader is destroyed
    /// before. Null if that is not possible now, because too many threads hang in this file.
    [[nodiscard]] std::unique_ptr<FactsReader> read(const SoundSource &file,
                                                    FactsReader::Tell tell);

    /// Begins to play a source that is expected to have this sample rate. If it yields no frame
    /// within two seconds, the stand-in is played, if there is one.
    [[nodiscard]] std::shared_ptr<Playing> play(const SoundSource &source, int sampleRate,
                                                std::shared_ptr<const SoundControls> controls,
                                                const OpenSoundBytes &standIn = {});

    /// Begins a playback whose file has not answered yet. It waits for Playing::goOn() for two
    /// seconds, and then plays the stand-in, if there is one.
    [[nodiscard]] std::shared_ptr<Playing> playLater(std::shared_ptr<const SoundControls> controls,
                                                     const OpenSoundBytes &standIn = {});

private:
    [[nodiscard]] std::shared_ptr<Playing>
    makePlaying(std::shared_ptr<const SoundControls> controls, const OpenSoundBytes &standIn);

    Workers _workers;
    const std::shared_ptr<Openings> _openings = std::make_shared<Openings>();
    std::shared_ptr<Outputs> _outputs;
};
