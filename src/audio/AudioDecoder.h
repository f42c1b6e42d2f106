#pragma once

#include <QtGlobal>

/// Decodes one open sound file to samples. One thread at a time.
class AudioDecoder
{
public:
    /// The format that the file states; the caller checks whether it is plausible.
    struct Format
    {
        int sampleRate = 0;
        int channels = 0;
        qint64 frames = 0;
    };

    AudioDecoder() = default;
    virtual ~AudioDecoder() = default;
    Q_DISABLE_COPY_MOVE(AudioDecoder)

    [[nodiscard]] virtual Format format() const = 0;

    /// Reads the next frames, their channels interleaved, and returns how many; 0 at the end and
    /// when the file cannot be read any further.
    [[nodiscard]] virtual qint64 read(float *samples, qint64 frames) = 0;

    /// Goes back to the first frame.
    [[nodiscard]] virtual bool rewind() = 0;
};
