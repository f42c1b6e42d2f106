#include "platform/sound/Voice.h"

#include "platform/sound/AudioFile.h"

#include <algorithm>

namespace
{
/// Long enough for few wake-ups, short enough for little memory.
constexpr int kBlocksPerSecond = 50;

/// How long a file may deliver nothing before its sound is given up.
constexpr std::size_t kPatienceSeconds = 2;

/// The volume changes by this much a frame, so that no change clicks.
constexpr float kGainStep = 1.0F / 256;
} // namespace

Voice::Voice(OpenSoundBytes open, int sampleRate, std::shared_ptr<const SoundControls> controls) :
    _open(std::move(open)), _sampleRate(sampleRate), _framesPerBlock(sampleRate / kBlocksPerSecond),
    _controls(std::move(controls)), _queue(_framesPerBlock)
{}

void Voice::stop()
{
    _stopped = true;
    _room.release();
}

void Voice::finish()
{
    _over = true;
    _room.release();
}

void Voice::readFile()
{
    const std::unique_ptr<AudioFile> file = AudioFile::open(_open());
    if (file && file->sampleRate() == _sampleRate) {
        bool passIsEmpty = true;
        while (isPlaying() && readBlock(*file, passIsEmpty)) {
        }
    }
    _readerIsDone = true;
}

bool Voice::readBlock(AudioFile &file, bool &passIsEmpty)
{
    BlockQueue::Block *block = _queue.back();
    if (!block) {
        _room.acquire();
        return true;
    }
    block->frames = file.readStereo(block->samples.data(), _framesPerBlock);
    block->endsPass = block->frames < _framesPerBlock;
    if (passIsEmpty && block->frames == 0)
        return false;
    passIsEmpty = block->endsPass;
    _queue.push();
    if (!passIsEmpty)
        return true;
    // Whether there is another pass shows only when this one has been played.
    return file.rewind();
}

bool Voice::mixInto(std::span<float> stereo, int heardAfter)
{
    const bool readerIsDone = _readerIsDone;
    while (!stereo.empty() && !_ended) {
        const BlockQueue::Block *block = _queue.front();
        if (!block) {
            starve(stereo.size() / 2, readerIsDone);
            break;
        }
        stereo = stereo.subspan(mixBlock(*block, stereo) * 2);
    }
    if (_ended)
        _unheard = std::min(_unheard, heardAfter) - static_cast<int>(stereo.size() / 2);
    if (_unheard <= 0 || (_stopped && _gain.value_or(0.0F) == 0.0F))
        finish();
    return !_over;
}

std::size_t Voice::mixBlock(const BlockQueue::Block &block, std::span<float> stereo)
{
    const auto blockFrames = static_cast<std::size_t>(block.frames);
    const std::size_t frames = std::min(stereo.size() / 2, blockFrames - _played);
    const float *sample = block.samples.data() + _played * 2;
    const float target = _stopped ? 0.0F : _controls->volume.load();
    float gain = _gain.value_or(target);
    for (std::size_t i = 0; i < frames * 2; i += 2) {
        gain += std::clamp(target - gain, -kGainStep, kGainStep);
        stereo[i] += *sample++ * gain;
        stereo[i + 1] += *sample++ * gain;
    }
    _gain = gain;
    _starved = 0;
    _played += frames;
    if (_played == blockFrames) {
        _ended = block.endsPass && !_controls->loops;
        _played = 0;
        _queue.pop();
        if (_queue.isHalfEmpty())
            _room.release();
    }
    return frames;
}

void Voice::starve(std::size_t frames, bool readerIsDone)
{
    _starved += frames;
    const auto patience = static_cast<std::size_t>(_sampleRate) * kPatienceSeconds;
    _ended = readerIsDone || _stopped || _starved > patience;
}
