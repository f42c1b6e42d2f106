#include "support/SoundFiles.h"

#include <QCoreApplication>

#include <array>

/// Writes a short sound in each format that the program plays to the given folder.
int main(int argc, char **argv)
{
    struct Seed
    {
        const char *name;
        Packing packing;
    };
    constexpr std::array kSeeds{
        Seed{"wav", {SF_FORMAT_WAV | SF_FORMAT_PCM_16, false}},
        Seed{"wav24", {SF_FORMAT_WAV | SF_FORMAT_PCM_24, false}},
        Seed{"float", {SF_FORMAT_WAV | SF_FORMAT_FLOAT, false}},
        Seed{"adpcm", {SF_FORMAT_WAV | SF_FORMAT_IMA_ADPCM, false}},
        Seed{"msadpcm", {SF_FORMAT_WAV | SF_FORMAT_MS_ADPCM, false}},
        Seed{"wavex", {SF_FORMAT_WAVEX | SF_FORMAT_PCM_16, false}},
        Seed{"rf64", {SF_FORMAT_RF64 | SF_FORMAT_PCM_16, false}},
        Seed{"aiff", {SF_FORMAT_AIFF | SF_FORMAT_PCM_16, false}},
        Seed{"au", {SF_FORMAT_AU | SF_FORMAT_ULAW, false}},
        Seed{"caf", {SF_FORMAT_CAF | SF_FORMAT_ALAC_16, false}},
        Seed{"flac", {SF_FORMAT_FLAC | SF_FORMAT_PCM_16, false}},
        Seed{"ogg", {SF_FORMAT_OGG | SF_FORMAT_VORBIS, false}},
        Seed{"opus", {SF_FORMAT_OGG | SF_FORMAT_OPUS, false}},
        Seed{"mp3", {SF_FORMAT_MPEG | SF_FORMAT_MPEG_LAYER_III, false}},
        Seed{"vbr", {SF_FORMAT_MPEG | SF_FORMAT_MPEG_LAYER_III, true}},
    };
    const QCoreApplication application(argc, argv);
    const QString folder = QCoreApplication::arguments().at(1);
    constexpr Tone tone{.seconds = 0.05, .channels = 2};
    for (const Seed &seed : kSeeds)
        writeTone(folder + QLatin1Char('/') + QString::fromLatin1(seed.name), tone, seed.packing);
    return 0;
}
