#pragma once

#include "audio/AudioDecoder.h"

#include <QIODevice>

#include <mpg123.h>

#include <memory>

/// Decodes MP3, without the silence that encoders add at both ends.
///
/// libsndfile 1.2 reads MP3 too, but of 130 files it judged 31 wrongly; here it is one, of free
/// format, that does not open. A variable rate without notes of its length ended after 8 of 20
/// seconds, and a picture in the tag made 76 seconds of 20. Half a file was said to be whole, and a
/// file with zeros behind its tag did not open.
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
