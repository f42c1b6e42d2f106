#include "audio/Mp3Decoder.h"

#include "audio/SoundBytes.h"

namespace
{
ssize_t readBytes(void *user, void *target, size_t count)
{
    return static_cast<QIODevice *>(user)->read(static_cast<char *>(target),
                                                static_cast<qint64>(count));
}

off_t seek(void *user, off_t offset, int whence)
{
    return seekFrom(*static_cast<QIODevice *>(user), offset, whence);
}
} // namespace

std::unique_ptr<AudioDecoder> Mp3Decoder::open(std::unique_ptr<QIODevice> bytes, bool statesLength)
{
    std::unique_ptr<Mp3Decoder> decoder(new Mp3Decoder(std::move(bytes)));
    return decoder->openStream() && decoder->measure(statesLength) ? std::move(decoder) : nullptr;
}

Mp3Decoder::Mp3Decoder(std::unique_ptr<QIODevice> bytes) :
    _bytes(std::move(bytes)), _handle(mpg123_new(nullptr, nullptr))
{}

bool Mp3Decoder::openStream()
{
    constexpr long flags = MPG123_QUIET | MPG123_GAPLESS | MPG123_FORCE_FLOAT;
    mpg123_handle *handle = _handle.get();
    return handle != nullptr && mpg123_param(handle, MPG123_ADD_FLAGS, flags, 0) == MPG123_OK &&
           mpg123_replace_reader_handle(handle, readBytes, seek, nullptr) == MPG123_OK &&
           mpg123_open_handle(handle, _bytes.get()) == MPG123_OK;
}

bool Mp3Decoder::measure(bool statesLength)
{
    mpg123_handle *handle = _handle.get();
    long rate = 0;
    int encoding = 0;
    if (mpg123_getformat(handle, &rate, &_format.channels, &encoding) != MPG123_OK ||
        encoding != MPG123_ENC_FLOAT_32)
        return false;
    // From here on the output keeps this format, whatever format later frames have.
    mpg123_format_none(handle);
    mpg123_format(handle, rate, _format.channels, encoding);
    if (!statesLength && mpg123_scan(handle) != MPG123_OK)
        return false;
    _format.sampleRate = static_cast<int>(rate);
    _format.frames = mpg123_length(handle);
    return true;
}

qint64 Mp3Decoder::read(float *samples, qint64 frames)
{
    const auto frameSize = static_cast<std::size_t>(_format.channels) * sizeof(float);
    std::size_t bytesRead = 0;
    // The result code is ignored: at the end, or where the stream is damaged, fewer bytes are read.
    mpg123_read(_handle.get(), samples, static_cast<std::size_t>(frames) * frameSize, &bytesRead);
    return static_cast<qint64>(bytesRead / frameSize);
}

bool Mp3Decoder::rewind()
{
    return mpg123_seek(_handle.get(), 0, SEEK_SET) == 0;
}
