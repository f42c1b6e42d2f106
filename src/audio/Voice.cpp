#include "audio/Voice.h"

#include "audio/AudioFile.h"

#include <algorithm>

namespace
{
/// Long enough for few wake-ups, short enough for little memory.
constexpr int kBlocksPerSecond = 50;

/// How long a file may deliver nothing before it is given up.
constexpr std::size_t kPatienceSeconds = 2;

/// The volume changes by this much a frame, so that no change clicks.
constexpr float kGainStep = 1.0F / 256;
} // namespace

Voice::Voice(int sampleRate, std::shared_ptr<const SoundControls> controls,
             std::function<void()> fileIsMissed) :
    _sampleRate(sampleRate),
    _framesPerBlock(sampleRate / kBlocksPerSecond), _controls(std::move(controls)),
    _fileIsMissed(std::move(fileIsMissed)), _queue(_framesPerBlock)
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

bool Voice::begin(AudioFile &file)
{
    return readBlock(file);
}

void Voice::readOn(AudioFile &file)
{
    bool endsPass = false;
    do {
        endsPass = _queue.back()->endsPass;
        _queue.push();
        // Whether there is another pass shows only when this one has been played.
        if (endsPass && !file.rewind())
            break;
        // A pass without a frame would go on for ever.
    } while (waitForRoom() && (readBlock(file) || !endsPass));
    _readerIsDone = true;
}

/// Fills the block at the back, which must be there; false when the file had nothing for it.
bool Voice::readBlock(AudioFile &file)
{
    BlockQueue::Block &block = *_queue.back();
    block.frames = file.readStereo(block.samples.data(), _framesPerBlock);
    block.endsPass = block.frames < _framesPerBlock;
    return block.frames > 0;
}

/// True once there is a block to fill, false when that is no longer wanted.
bool Voice::waitForRoom()
{
    while (isPlaying() && !_queue.back())
        _room.acquire();
    return isPlaying();
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
    const bool isOutOfPatience =
        _starved > static_cast<std::size_t>(_sampleRate) * kPatienceSeconds;
    const bool hasBegun = _gain.has_value();
    _ended = _stopped || (hasBegun && (readerIsDone || isOutOfPatience));
    if (isOutOfPatience && !_ended) {
        _starved = 0;
        _fileIsMissed();
    }
}
