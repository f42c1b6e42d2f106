#include "audio/Outputs.h"

#include "audio/Output.h"
#include "audio/Voice.h"

Outputs::Outputs(QByteArray title, Workers workers) :
    _title(std::move(title)), _workers(std::move(workers))
{}

Outputs::~Outputs() = default;

void Outputs::play(const std::shared_ptr<Voice> &voice)
{
    const std::lock_guard lock(_mutex);
    add(voice, _outputs[voice->sampleRate()], Output::Device::Default);
}

void Outputs::playUnheard(const std::shared_ptr<Voice> &voice)
{
    Q_ASSERT(voice->sampleRate() == kUnheardRate);
    const std::lock_guard lock(_mutex);
    add(voice, _unheard, Output::Device::None);
}

void Outputs::add(const std::shared_ptr<Voice> &voice, std::shared_ptr<Output> &output,
                  Output::Device device)
{
    if (_isClosed) {
        voice->finish();
        return;
    }
    if (!output)
        output = std::make_shared<Output>(device, voice->sampleRate(), _title, _workers);
    output->play(voice);
}

void Outputs::close()
{
    const std::lock_guard lock(_mutex);
    _isClosed = true;
    for (const auto &[sampleRate, output] : _outputs) {
        if (output)
            output->close();
    }
    if (_unheard)
        _unheard->close();
}
