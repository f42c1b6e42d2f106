#include "audio/AudioFile.h"
#include "tests/fuzz/Check.h"

#include <QBuffer>

#include <algorithm>
#include <cmath>
#include <vector>

namespace
{
constexpr int kFrames = 1024;
/// Enough to get into the data. A limit, because a header may claim a length of a month.
constexpr int kBlocks = 40;

/// Reads some blocks; returns the number of frames.
int readSome(AudioFile &file)
{
    std::vector<float> samples(2 * kFrames);
    int total = 0;
    for (int block = 0; block < kBlocks; ++block) {
        const int frames = file.readStereo(samples.data(), kFrames);
        check(frames >= 0 && frames <= kFrames, "no more frames are read than requested");
        check(std::all_of(samples.begin(), samples.begin() + 2 * frames,
                          [](float sample) { return std::isfinite(sample); }),
              "samples are finite");
        total += frames;
        if (frames < kFrames)
            break;
    }
    return total;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const quint8 *data, std::size_t size)
{
    auto bytes = std::make_unique<QBuffer>();
    bytes->setData(reinterpret_cast<const char *>(data), int(size));
    bytes->open(QIODevice::ReadOnly);
    const std::unique_ptr<AudioFile> file = AudioFile::open(std::move(bytes));
    if (!file)
        return 0;
    check(file->sampleRate() > 0, "the sample rate is positive");
    check(file->duration() > 0 && std::isfinite(file->duration()), "the duration is positive");
    readSome(*file);
    if (file->rewind())
        readSome(*file);
    return 0;
}
