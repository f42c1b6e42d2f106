#pragma once

#include "audio/AudioDecoder.h"

#include <QIODevice>

#include <mpg123.h>

#include <memory>

/// Decodes MP3, without the silence that encoders add at both ends.
class Mp3Decoder final : public AudioDecoder
{
public:
    /// Null if the stream cannot be played. If it does not state its length, it is read through
    /// once without decoding.
    [[nodiscard]] static std::unique_ptr<AudioDecoder> open(std::unique_ptr<QIODevice> bytes,
                                                            bool statesLength);

    [[nodiscard]] Format format() const override { return _format; }
    [[nodiscard]] qint64 read(float *samples, qint64 frames) override;
    [[nodiscard]] bool rewind() override;

private:
    struct Delete
    {
        void operator()(mpg123_handle *handle) const { mpg123_delete(handle); }
    };

    explicit Mp3Decoder(std::unique_ptr<QIODevice> bytes);

    [[nodiscard]] bool openStream();
    [[nodiscard]] bool measure(bool statesLength);

    std::unique_ptr<QIODevice> _bytes;
    std::unique_ptr<mpg123_handle, Delete> _handle;
    Format _format;
};
