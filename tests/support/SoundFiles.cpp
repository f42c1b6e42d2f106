#include "support/SoundFiles.h"

#include <QFile>

#include <cmath>
#include <numbers>
#include <vector>

namespace
{
std::vector<float> samples(const Tone &tone, sf_count_t frames)
{
    std::vector<float> result;
    for (sf_count_t frame = 0; frame < frames; ++frame) {
        const double turns = static_cast<double>(frame) * tone.frequency / tone.sampleRate;
        for (int channel = 1; channel <= tone.channels; ++channel) {
            const double value = std::sin(2 * std::numbers::pi * turns * channel);
            result.push_back(static_cast<float>(tone.amplitude * value));
        }
    }
    return result;
}
} // namespace

void writeTone(const QString &path, const Tone &tone, Packing packing)
{
    SF_INFO info = {};
    info.samplerate = tone.sampleRate;
    info.channels = tone.channels;
    info.format = packing.format;
    SNDFILE *file = sf_open(QFile::encodeName(path).constData(), SFM_WRITE, &info);
    if (!file)
        qFatal("cannot write %s: %s", qUtf8Printable(path), sf_strerror(nullptr));
    if (packing.variableRate) {
        int mode = SF_BITRATE_MODE_VARIABLE;
        sf_command(file, SFC_SET_BITRATE_MODE, &mode, sizeof mode);
        if (sf_command(file, SFC_GET_BITRATE_MODE, nullptr, 0) != SF_BITRATE_MODE_VARIABLE)
            qFatal("this libsndfile cannot write variable bit rates");
    }
    const auto frames = static_cast<sf_count_t>(std::llround(tone.seconds * tone.sampleRate));
    const std::vector<float> values = samples(tone, frames);
    if (sf_writef_float(file, values.data(), frames) != frames || sf_close(file) != 0)
        qFatal("cannot write the samples of %s", qUtf8Printable(path));
}
