#include "audio/SoundEngine.h"

#include "audio/Outputs.h"
#include "audio/Playing.h"

#include <QCoreApplication>

using namespace std::chrono_literals;

SoundEngine::SoundEngine() :
    _outputs(std::make_shared<Outputs>(QCoreApplication::applicationName().toUtf8(), _workers))
{}

SoundEngine::~SoundEngine()
{
    _outputs->close();
    _workers.waitUntilIdle(900ms);
}

std::shared_ptr<Playing> SoundEngine::play(const OpenSoundBytes &open, int sampleRate,
                                           std::shared_ptr<const SoundControls> controls,
                                           const OpenSoundBytes &standIn)
{
    auto playing =
        std::make_shared<Playing>(open, standIn, std::move(controls), _outputs, _workers);
    playing->start(sampleRate);
    return playing;
}
