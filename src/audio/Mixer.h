#pragma once

#include <QtGlobal>

#include <atomic>
#include <chrono>
#include <memory>
#include <mutex>
#include <optional>
#include <span>
#include <vector>

class Voice;

/// Mixes the voices of one sample rate. While no sound device asks for samples, it advances the
/// voices unheard, so that they end on time.
class Mixer final
{
public:
    explicit Mixer(int sampleRate);
    Q_DISABLE_COPY_MOVE(Mixer)

    /// Adds a voice, which joins at the next frames. Any thread; does not wait for the mixing.
    void add(std::shared_ptr<Voice> voice);

    /// True while a voice that was added has not joined yet. Any thread.
    [[nodiscard]] bool hasNewcomers() const;

    /// Fills the buffer (stereo, interleaved) of a sound device with the next frames. One thread
    /// at a time.
    void render(std::span<float> stereo);

    /// Call when a device is about to open: the voices then wait for it for a moment. Any thread.
    void expectDevice() { _deviceIsExpected = true; }

    /// Call when there is no device: the voices then do not wait for one. Any thread.
    void forgetDevice() { _deviceIsExpected = false; }

    /// Advances the voices unheard if no device has asked for samples for a while. Returns how long
    /// to wait before the next call, or nothing if there has been no voice for so long that the
    /// device can be closed.
    [[nodiscard]] std::optional<std::chrono::nanoseconds> keepTime();

    /// Ends all voices.
    void finish();

private:
    using Moment = std::chrono::steady_clock::time_point;

    void admitNewcomers(Moment now);
    void mix(std::span<float> stereo, int latency, Moment now);

    const int _sampleRate;
    std::atomic<bool> _deviceIsExpected = true;

    mutable std::mutex _newcomersMutex;
    std::vector<std::shared_ptr<Voice>> _newcomers;

    // Guards the members below.
    std::mutex _mixing;
    std::vector<std::shared_ptr<Voice>> _voices;
    std::vector<float> _discarded;
    Moment _mixedUntil;
    Moment _lastSounded;
};
