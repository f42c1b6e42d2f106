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

std::unique_ptr<FactsReader> SoundEngine::read(const SoundSource &file, FactsReader::Tell tell)
{
    Openings::Ticket ticket = _openings->begin(file.name);
    if (!ticket)
        return nullptr;
    auto reader = std::make_unique<FactsReader>(std::move(tell));
    return reader->start(_workers, file, std::move(ticket)) ? std::move(reader) : nullptr;
}

std::shared_ptr<Playing> SoundEngine::play(const SoundSource &source, int sampleRate,
                                           std::shared_ptr<const SoundControls> controls,
                                           const OpenSoundBytes &standIn)
{
    auto playing = makePlaying(std::move(controls), standIn);
    playing->start(source.open, sampleRate, _openings->begin(source.name));
    return playing;
}

std::shared_ptr<Playing> SoundEngine::playLater(std::shared_ptr<const SoundControls> controls,
                                                const OpenSoundBytes &standIn)
{
    auto playing = makePlaying(std::move(controls), standIn);
    playing->wait();
    return playing;
}

std::shared_ptr<Playing> SoundEngine::makePlaying(std::shared_ptr<const SoundControls> controls,
                                                  const OpenSoundBytes &standIn)
{
    return std::make_shared<Playing>(standIn, std::move(controls), _outputs, _workers);
}
