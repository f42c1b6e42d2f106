#include "audio/AudioFile.h"

#include "audio/Mp3Decoder.h"
#include "audio/Mp3Stream.h"
#include "audio/SndFileDecoder.h"

#include <cmath>
#include <numeric>
#include <span>

namespace
{
std::unique_ptr<AudioDecoder> openDecoder(std::unique_ptr<QIODevice> bytes)
{
    if (!bytes)
        return nullptr;
    const std::optional<Mp3Stream> mp3 = Mp3Stream::find(*bytes);
    if (!mp3)
        return SndFileDecoder::open(std::move(bytes));
    return mp3->isTruncated ? nullptr : Mp3Decoder::open(std::move(bytes), mp3->statesLength);
}

float finiteOrSilence(float sample)
{
    return std::isfinite(sample) ? sample : 0.0F;
}
} // namespace

std::unique_ptr<AudioFile> AudioFile::open(std::unique_ptr<QIODevice> bytes)
{
    std::unique_ptr<AudioDecoder> decoder = openDecoder(std::move(bytes));
    if (!decoder)
        return nullptr;
    std::unique_ptr<AudioFile> file(new AudioFile(std::move(decoder)));
    return file->isPlausible() ? std::move(file) : nullptr;
}

AudioFile::AudioFile(std::unique_ptr<AudioDecoder> decoder) :
    _decoder(std::move(decoder)), _format(_decoder->format())
{}

double AudioFile::duration() const
{
    return static_cast<double>(_format.frames) / _format.sampleRate;
}

bool AudioFile::isPlausible() const
{
    // No sound is a month long, and sound servers accept no other rates.
    constexpr double longest = 30.0 * 24 * 60 * 60;
    return _format.sampleRate >= 1000 && _format.sampleRate <= 192'000 && _format.channels >= 1 &&
           _format.channels <= 32 && _format.frames > 0 && duration() <= longest;
}

int AudioFile::read(int frames)
{
    const auto channels = static_cast<std::size_t>(_format.channels);
    _samples.resize(static_cast<std::size_t>(frames) * channels);
    int count = 0;
    while (count < frames) {
        float *target = _samples.data() + static_cast<std::size_t>(count) * channels;
        const auto more = static_cast<int>(_decoder->read(target, frames - count));
        if (more <= 0)
            break;
        count += more;
    }
    return count;
}

int AudioFile::readStereo(float *samples, int frames)
{
    const int count = read(frames);
    const auto channels = static_cast<std::size_t>(_format.channels);
    for (int i = 0; i < count; ++i) {
        const std::span frame(_samples.data() + static_cast<std::size_t>(i) * channels, channels);
        if (channels == 2) {
            *samples++ = finiteOrSilence(frame[0]);
            *samples++ = finiteOrSilence(frame[1]);
        } else {
            // The order of further channels differs between formats, so all channels are mixed to
            // both sides.
            const float sum = std::accumulate(frame.begin(), frame.end(), 0.0F);
            const float sample = finiteOrSilence(sum / static_cast<float>(channels));
            *samples++ = sample;
            *samples++ = sample;
        }
    }
    return count;
}
