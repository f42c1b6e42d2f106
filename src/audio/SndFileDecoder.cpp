#include "audio/SndFileDecoder.h"

#include "audio/SoundBytes.h"

#include <algorithm>
#include <array>
#include <vector>

namespace
{
QIODevice &device(void *user)
{
    return *static_cast<QIODevice *>(user);
}

sf_count_t length(void *user)
{
    return device(user).size();
}

sf_count_t seek(sf_count_t offset, int whence, void *user)
{
    return seekFrom(device(user), offset, whence);
}

sf_count_t readBytes(void *target, sf_count_t count, void *user)
{
    return std::max<qint64>(0, device(user).read(static_cast<char *>(target), count));
}

sf_count_t writeNothing(const void *, sf_count_t, void *)
{
    return 0;
}

sf_count_t tell(void *user)
{
    return device(user).pos();
}

/// Whether the file begins with the signature of a sound format. Other files are not passed on to
/// libsndfile, which would also open data and instrument files, and guess the length of MP3.
bool hasSoundSignature(QIODevice &bytes)
{
    static constexpr std::array kSignatures{
        "RIFF", "RIFX", "RF64", "riff", "FORM", ".snd", "caff", "fLaC", "OggS",
    };
    const QByteArray beginning = bytesAt(bytes, offsetBehindId3Tags(bytes), 4);
    const auto isSignature = [&](const char *known) { return beginning == known; };
    return std::ranges::any_of(kSignatures, isSignature) && bytes.seek(0);
}
} // namespace

std::unique_ptr<AudioDecoder> SndFileDecoder::open(std::unique_ptr<QIODevice> bytes)
{
    if (!hasSoundSignature(*bytes))
        return nullptr;
    std::unique_ptr<SndFileDecoder> decoder(new SndFileDecoder(std::move(bytes)));
    return decoder->isPlayable() ? std::move(decoder) : nullptr;
}

SndFileDecoder::SndFileDecoder(std::unique_ptr<QIODevice> bytes) : _bytes(std::move(bytes))
{
    SF_VIRTUAL_IO access = {length, seek, readBytes, writeNothing, tell};
    _file.reset(sf_open_virtual(&access, SFM_READ, &_info, _bytes.get()));
}

AudioDecoder::Format SndFileDecoder::format() const
{
    return {_info.samplerate, _info.channels, _info.frames};
}

qint64 SndFileDecoder::read(float *samples, qint64 frames)
{
    return sf_readf_float(_file.get(), samples, frames);
}

bool SndFileDecoder::rewind()
{
    return sf_seek(_file.get(), 0, SEEK_SET) == 0;
}

bool SndFileDecoder::isPlayable()
{
    if (!_file || _info.seekable == 0)
        return false;
    // FLAC states its length at the beginning, even if the rest is cut off. For uncompressed
    // formats libsndfile counts what is there; a cut-off Ogg stream has no plausible length.
    const bool isFlac = (_info.format & SF_FORMAT_TYPEMASK) == SF_FORMAT_FLAC;
    return !isFlac || (lastFrameCanBeRead() && rewind());
}

bool SndFileDecoder::lastFrameCanBeRead()
{
    std::vector<float> frame(static_cast<std::size_t>(_info.channels));
    return _info.frames > 0 && sf_seek(_file.get(), _info.frames - 1, SEEK_SET) >= 0 &&
           read(frame.data(), 1) == 1;
}
