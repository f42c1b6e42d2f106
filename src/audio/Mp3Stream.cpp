#include "audio/Mp3Stream.h"

#include "audio/SoundBytes.h"

#include <QByteArray>
#include <QtEndian>

#include <algorithm>
#include <array>

namespace
{
/// The four bytes that begin every frame of MPEG audio layer III.
struct FrameHeader
{
    static constexpr qint64 kSize = 4;

    [[nodiscard]] static std::optional<FrameHeader> parse(const QByteArray &bytes);

    /// True if both frames can belong to one stream.
    [[nodiscard]] bool fits(const FrameHeader &other) const
    {
        return version == other.version && sampleRate == other.sampleRate;
    }

    [[nodiscard]] bool isVersion1() const { return version == 3; }

    /// The offset of the encoder's Xing or Info tag: behind the header and the side information.
    [[nodiscard]] qsizetype xingOffset() const
    {
        const qsizetype sideInformation = isVersion1() ? (mono ? 17 : 32) : (mono ? 9 : 17);
        return kSize + sideInformation;
    }

    int version = 0; // 3 is MPEG 1, 2 is MPEG 2, 0 is MPEG 2.5
    int sampleRate = 0;
    bool mono = false;
    qint64 length = 0;
};

std::optional<FrameHeader> FrameHeader::parse(const QByteArray &bytes)
{
    if (bytes.size() < kSize)
        return {};
    const auto bits = qFromBigEndian<quint32>(bytes.constData());
    const auto field = [bits](int shift, quint32 mask) {
        return static_cast<int>((bits >> shift) & mask);
    };
    const int version = field(19, 3);
    const int layer = field(17, 3);
    const int bitRateIndex = field(12, 15);
    const int sampleRateIndex = field(10, 3);
    if (field(21, 0x7ff) != 0x7ff || version == 1 || layer != 1 || bitRateIndex == 0 ||
        bitRateIndex == 15 || sampleRateIndex == 3)
        return {};

    static constexpr std::array kSampleRates{44100, 48000, 32000};
    static constexpr std::array kBitRates1{0,   32,  40,  48,  56,  64,  80, 96,
                                           112, 128, 160, 192, 224, 256, 320};
    static constexpr std::array kBitRates2{0,  8,  16, 24,  32,  40,  48, 56,
                                           64, 80, 96, 112, 128, 144, 160};
    FrameHeader header;
    header.version = version;
    header.mono = field(6, 3) == 3;
    header.sampleRate =
        kSampleRates.at(static_cast<std::size_t>(sampleRateIndex)) / (version == 3   ? 1
                                                                      : version == 2 ? 2
                                                                                     : 4);
    const auto &bitRates = header.isVersion1() ? kBitRates1 : kBitRates2;
    const int bitRate = bitRates.at(static_cast<std::size_t>(bitRateIndex)) * 1000;
    const int bytesPerFrame = (header.isVersion1() ? 144 : 72) * bitRate / header.sampleRate;
    header.length = bytesPerFrame + field(9, 1);
    return header;
}

/// Where the stream begins: behind any tags and the zeros that some programs write after them.
qint64 streamOffset(QIODevice &bytes)
{
    const qint64 offset = offsetBehindId3Tags(bytes);
    if (offset == 0)
        return 0;
    constexpr qint64 mostPadding = 16'384;
    const QByteArray rest = bytesAt(bytes, offset, mostPadding);
    const auto isZero = [](char byte) { return byte == 0; };
    return offset + std::distance(rest.begin(), std::ranges::find_if_not(rest, isZero));
}

/// Reads the encoder's tag in the first frame: Xing (or Info), or VBRI.
Mp3Stream readEncoderTag(const QByteArray &frame, const FrameHeader &header, qint64 available)
{
    const auto number = [&frame](qsizetype offset) -> qint64 {
        return offset + 4 <= frame.size() ? qFromBigEndian<quint32>(frame.constData() + offset) : 0;
    };
    const qsizetype xing = header.xingOffset();
    const QByteArray xingName = frame.mid(xing, 4);
    if (xingName == "Xing" || xingName == "Info") {
        const qint64 flags = number(xing + 4);
        const bool hasFrames = (flags & 1) != 0;
        const bool hasBytes = (flags & 2) != 0;
        return {hasFrames, hasBytes && number(xing + (hasFrames ? 12 : 8)) > available};
    }
    constexpr qsizetype vbri = FrameHeader::kSize + 32;
    // The decoder does not know these notes, so the length is not to be had from them.
    const bool hasVbri = frame.mid(vbri, 4) == "VBRI";
    return {false, hasVbri && number(vbri + 10) > available};
}
} // namespace

std::optional<Mp3Stream> Mp3Stream::find(QIODevice &bytes)
{
    const qint64 offset = streamOffset(bytes);
    const auto first = FrameHeader::parse(bytesAt(bytes, offset, FrameHeader::kSize));
    std::optional<Mp3Stream> stream;
    if (first) {
        const auto second =
            FrameHeader::parse(bytesAt(bytes, offset + first->length, FrameHeader::kSize));
        const QByteArray frame = bytesAt(bytes, offset, first->length);
        if (second && second->fits(*first))
            stream = readEncoderTag(frame, *first, bytes.size() - offset);
    }
    return bytes.seek(0) ? stream : std::nullopt;
}
