#include "audio/Voice.h"

#include "audio/AudioFile.h"
#include "audio/SoundSource.h"

#include <algorithm>

namespace
{
/// Long enough for few wake-ups, short enough for little memory.
constexpr int kBlocksPerSecond = 50;

/// The most by which the volume changes per frame, so that no change clicks.
constexpr float kGainStep = 1.0F / 256;
} // namespace

Voice::Voice(int sampleRate, std::shared_ptr<const SoundControls> controls,
             std::function<void()> fileTimedOut) :
    _sampleRate(sampleRate),
    _framesPerBlock(sampleRate / kBlocksPerSecond), _controls(std::move(controls)),
    _fileTimedOut(std::move(fileTimedOut)), _queue(_framesPerBlock)
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
        // Always rewinds: only when this pass has been played is it known whether another follows.
        if (endsPass && !file.rewind())
            break;
        // A file without a frame would loop forever.
    } while (waitForRoom() && (readBlock(file) || !endsPass));
    _readerIsDone = true;
}

/// Fills the block at the back, which must not be null; false if the file had no frame for it.
bool Voice::readBlock(AudioFile &file)
{
    BlockQueue::Block &block = *_queue.back();
    block.frames = file.readStereo(block.samples.data(), _framesPerBlock);
    block.endsPass = block.frames < _framesPerBlock;
    return block.frames > 0;
}

/// Waits for a block to fill; false if the voice has ended or was stopped instead.
bool Voice::waitForRoom()
{
    while (isPlaying() && !_queue.back())
        _room.acquire();
    return isPlaying();
}

bool Voice::mixInto(std::span<float> stereo, int latency)
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
        _framesUntilHeard =
            std::min(_framesUntilHeard, latency) - static_cast<int>(stereo.size() / 2);
    if (_framesUntilHeard <= 0 || (_stopped && _gain.value_or(0.0F) == 0.0F))
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
    const bool hasTimedOut =
        _starved > static_cast<std::size_t>(_sampleRate) * kPatienceForFiles.count();
    const bool hasBegun = _gain.has_value();
    _ended = _stopped || (hasBegun && (readerIsDone || hasTimedOut));
    if (hasTimedOut && !_ended) {
        _starved = 0;
        _fileTimedOut();
    }
}
