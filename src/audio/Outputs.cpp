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
    if (_isClosed) {
        voice->finish();
        return;
    }
    const int sampleRate = voice->sampleRate();
    std::shared_ptr<Output> &output = _outputs[sampleRate];
    if (!output)
        output = std::make_shared<Output>(sampleRate, _title, _workers);
    output->play(voice);
}

void Outputs::close()
{
    const std::lock_guard lock(_mutex);
    _isClosed = true;
    for (const auto &[sampleRate, output] : _outputs)
        output->close();
}
