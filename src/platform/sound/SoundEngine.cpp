#include "platform/sound/SoundEngine.h"

#include "platform/sound/Output.h"
#include "platform/sound/Voice.h"

#include <QCoreApplication>

using namespace std::chrono_literals;

SoundEngine::~SoundEngine()
{
    for (const auto &[sampleRate, output] : _outputs)
        output->close();
    _workers.waitUntilIdle(900ms);
}

std::shared_ptr<Voice> SoundEngine::play(const OpenSoundBytes &open, int sampleRate,
                                         std::shared_ptr<const SoundControls> controls)
{
    auto voice = std::make_shared<Voice>(open, sampleRate, std::move(controls));
    if (_workers.start([voice] { voice->readFile(); }))
        output(sampleRate).play(voice);
    else
        voice->finish();
    return voice;
}

Output &SoundEngine::output(int sampleRate)
{
    std::shared_ptr<Output> &output = _outputs[sampleRate];
    if (!output) {
        output = std::make_shared<Output>(sampleRate, QCoreApplication::applicationName().toUtf8(),
                                          _workers);
    }
    return *output;
}
