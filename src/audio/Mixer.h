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

/// Mixes the voices of one sample rate, and sees to it that their time passes also while no
/// sound device asks for them.
class Mixer final
{
public:
    explicit Mixer(int sampleRate);
    Q_DISABLE_COPY_MOVE(Mixer)

    /// Lets a voice join in with the next frames. Any thread; waits for no mixing.
    void add(std::shared_ptr<Voice> voice);

    /// True while a voice that was added has not joined in. Any thread.
    [[nodiscard]] bool hasNewcomers() const;

    /// Fills the buffer (stereo, interleaved) of a sound device with the next frames. One thread
    /// at a time.
    void render(std::span<float> stereo);

    /// A device is about to come, so time waits for it for a moment. Any thread.
    void expectDevice() { _deviceIsExpected = true; }

    /// There is no device, so time need not wait for one. Any thread.
    void forgetDevice() { _deviceIsExpected = false; }

    /// Lets the voices go on unheard if no device has asked for them for a while. Gives how long
    /// to wait before the next call, or nothing when all has been silent for so long that the
    /// device need not be kept.
    [[nodiscard]] std::optional<std::chrono::nanoseconds> keepTime();

    /// Ends all voices.
    void finish();

private:
    using Moment = std::chrono::steady_clock::time_point;

    void admitNewcomers(Moment now);
    void mix(std::span<float> stereo, int heardAfter, Moment now);

    const int _sampleRate;
    std::atomic<bool> _deviceIsExpected = true;

    mutable std::mutex _newcomersMutex;
    std::vector<std::shared_ptr<Voice>> _newcomers;

    // What follows belongs to whoever holds this.
    std::mutex _mixing;
    std::vector<std::shared_ptr<Voice>> _voices;
    std::vector<float> _unheard;
    Moment _mixedUntil;
    Moment _lastSounded;
};
