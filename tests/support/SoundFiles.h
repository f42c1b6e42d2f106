#pragma once

#include <QString>

#include <sndfile.h>

/// A sine of one frequency. The second channel has twice the frequency, the third three times.
struct Tone
{
    double seconds = 1.0;
    double frequency = 500.0;
    int sampleRate = 48000;
    int channels = 1;
    double amplitude = 0.5;
};

/// How a sound file is packed: a format of libsndfile, and whether the bit rate may vary.
struct Packing
{
    int format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
    bool variableRate = false;
};

/// Writes a sound file. Ends the program if that fails, as no test can go on without it.
void writeTone(const QString &path, const Tone &tone = {}, Packing packing = {});
