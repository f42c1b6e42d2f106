#pragma once

#include "audio/AudioDecoder.h"

#include <QIODevice>

#include <memory>
#include <vector>

/// An open sound file, read as stereo from its beginning to its end. One thread at a time.
class AudioFile final
{
public:
    /// What kind of file it is shows in its bytes; its name does not matter. Null when there are
    /// no bytes, when they are no sound, when part of the sound is missing, or when what they
    /// claim to be cannot be true.
    [[nodiscard]] static std::unique_ptr<AudioFile> open(std::unique_ptr<QIODevice> bytes);

    /// Frames a second.
    [[nodiscard]] int sampleRate() const { return _format.sampleRate; }

    /// Length in seconds, greater than 0.
    [[nodiscard]] double duration() const;

    /// Reads the next frames, two samples each, and gives how many there were: fewer than asked
    /// for only at the end of the file. Samples that are not numbers become silence.
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
