#include "audio/Mixer.h"

#include "audio/Voice.h"

#include <algorithm>

using namespace std::chrono_literals;

namespace
{
/// A working device asks for samples every few milliseconds, and a new one opens well within this
/// time. A device that has not asked for longer is missing or hangs.
constexpr auto kDeviceTimeout = 300ms;

/// How often the voices advance without a device.
constexpr auto kTick = 20ms;

/// The longest step without a device, and the pause between steps that catch up, so that the
/// threads that read the files can keep up.
constexpr auto kLongestStep = 80ms;
constexpr auto kCatchUpPause = 5ms;

/// How long the device stays open after the last voice: longer than samples that were mixed take
/// to reach the loudspeaker.
constexpr auto kKeepDeviceFor = 500ms;

/// The usual time from mixing to hearing, spent in the buffers of the stream and of the server.
constexpr auto kOutputLatency = 50ms;

int framesIn(std::chrono::nanoseconds time, int sampleRate)
{
    return static_cast<int>(time.count() * sampleRate / std::nano::den);
}
} // namespace

Mixer::Mixer(int sampleRate) : _sampleRate(sampleRate)
{
    _discarded.resize(static_cast<std::size_t>(framesIn(kLongestStep, sampleRate)) * 2);
}

void Mixer::add(std::shared_ptr<Voice> voice)
{
    const std::lock_guard lock(_newcomersMutex);
    _newcomers.push_back(std::move(voice));
}

bool Mixer::hasNewcomers() const
{
    const std::lock_guard lock(_newcomersMutex);
    return !_newcomers.empty();
}

void Mixer::render(std::span<float> stereo)
{
    const std::lock_guard lock(_mixing);
    _deviceIsExpected = true;
    const Moment now = std::chrono::steady_clock::now();
    admitNewcomers(now);
    mix(stereo, framesIn(kOutputLatency, _sampleRate), now);
    _mixedUntil = now;
}

std::optional<std::chrono::nanoseconds> Mixer::keepTime()
{
    const std::lock_guard lock(_mixing);
    const Moment now = std::chrono::steady_clock::now();
    if (_voices.empty())
        admitNewcomers(now);
    if (_voices.empty()) {
        const std::chrono::nanoseconds left = _lastSounded + kKeepDeviceFor - now;
        return left > 0ns ? std::optional(left) : std::nullopt;
    }
    const std::chrono::nanoseconds behind = now - _mixedUntil;
    if (_deviceIsExpected && behind < kDeviceTimeout)
        return kDeviceTimeout - behind;
    _deviceIsExpected = false;
    const int frames =
        framesIn(std::min<std::chrono::nanoseconds>(behind, kLongestStep), _sampleRate);
    mix(std::span(_discarded).first(static_cast<std::size_t>(frames) * 2), 0, now);
    _mixedUntil += std::chrono::nanoseconds(std::nano::den * frames / _sampleRate);
    if (behind > kLongestStep)
        return kCatchUpPause;
    // Last, so that no time passes for a voice before it has joined.
    admitNewcomers(now);
    return kTick;
}

void Mixer::finish()
{
    const std::scoped_lock lock(_mixing, _newcomersMutex);
    for (const auto *voices : {&_voices, &_newcomers}) {
        for (const std::shared_ptr<Voice> &voice : *voices)
            voice->finish();
    }
}

void Mixer::admitNewcomers(Moment now)
{
    const std::lock_guard lock(_newcomersMutex);
    if (_newcomers.empty())
        return;
    if (_voices.empty())
        _mixedUntil = now;
    std::ranges::move(_newcomers, std::back_inserter(_voices));
    _newcomers.clear();
}

void Mixer::mix(std::span<float> stereo, int latency, Moment now)
{
    if (!_voices.empty())
        _lastSounded = now;
    std::ranges::fill(stereo, 0.0F);
    std::erase_if(_voices, [=](const std::shared_ptr<Voice> &voice) {
        return !voice->mixInto(stereo, latency);
    });
    for (float &sample : stereo)
        sample = std::clamp(sample, -1.0F, 1.0F);
}
