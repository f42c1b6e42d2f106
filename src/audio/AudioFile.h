#pragma once

#include "audio/AudioDecoder.h"

#include <QIODevice>

#include <memory>
#include <vector>

/// An open sound file, read as stereo from its beginning to its end. One thread at a time.
class AudioFile final
{
public:
    /// Recognizes the format by the bytes, not by the name of the file. Null if there are no bytes,
    /// if they are not a sound, if the sound is cut off, or if the format that they state is not
    /// plausible.
    [[nodiscard]] static std::unique_ptr<AudioFile> open(std::unique_ptr<QIODevice> bytes);

    /// Frames per second.
    [[nodiscard]] int sampleRate() const { return _format.sampleRate; }

    /// Length in seconds, greater than 0.
    [[nodiscard]] double duration() const;

    /// Reads the next frames, two samples each, and returns how many: fewer than asked for only at
    /// the end of the file. Samples that are not finite become silence.
    [[nodiscard]] int readStereo(float *samples, int frames);

    /// Goes back to the first frame.
    [[nodiscard]] bool rewind() { return _decoder->rewind(); }

private:
    explicit AudioFile(std::unique_ptr<AudioDecoder> decoder);

    [[nodiscard]] bool isPlausible() const;
    [[nodiscard]] int read(int frames);

    std::unique_ptr<AudioDecoder> _decoder;
    AudioDecoder::Format _format;
    std::vector<float> _samples;
};
