#pragma once

#include <QString>

#include <sndfile.h>

/// A sine wave. The second channel has twice the frequency, the third three times, and so on.
struct Tone
{
    double seconds = 1.0;
    double frequency = 500.0;
    int sampleRate = 48000;
    int channels = 1;
    double amplitude = 0.5;
};

/// How a sound file is encoded: the format for libsndfile, and whether the bit rate may vary.
struct Packing
{
    int format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
    bool variableRate = false;
};

/// Writes a sound file. Ends the program if that fails, because the test cannot go on.
void writeTone(const QString &path, const Tone &tone = {}, Packing packing = {});
