#pragma once

#include "audio/AudioDecoder.h"

#include <QIODevice>

#include <sndfile.h>

#include <memory>

/// Decodes WAV, AIFF, FLAC, Ogg Vorbis, Opus and similar formats.
class SndFileDecoder final : public AudioDecoder
{
public:
    /// Null if the bytes have none of these formats or are cut off.
    [[nodiscard]] static std::unique_ptr<AudioDecoder> open(std::unique_ptr<QIODevice> bytes);

    [[nodiscard]] Format format() const override;
    [[nodiscard]] qint64 read(float *samples, qint64 frames) override;
    [[nodiscard]] bool rewind() override;

private:
    struct Close
    {
        void operator()(SNDFILE *file) const { sf_close(file); }
    };

    explicit SndFileDecoder(std::unique_ptr<QIODevice> bytes);

    [[nodiscard]] bool isPlayable();
    [[nodiscard]] bool lastFrameCanBeRead();

    std::unique_ptr<QIODevice> _bytes;
    SF_INFO _info = {};
    std::unique_ptr<SNDFILE, Close> _file;
};
