#pragma once

#include "audio/Mixer.h"
#include "audio/Workers.h"

#include <QByteArray>

#include <condition_variable>
#include <memory>
#include <mutex>

class Voice;

/// Plays the voices of one sample rate, with one mixer and one stream that is open only while a
/// sound plays.
///
/// Two threads run then. The device thread talks to the sound server and may hang there; the
/// other keeps the time of the voices and never waits for the server. Both keep the output alive.
class Output final : public std::enable_shared_from_this<Output>
{
public:
    enum class Device { Default, None };

    /// Without a device the voices are not heard, but their time passes.
    Output(Device device, int sampleRate, QByteArray title, Workers workers);
    Q_DISABLE_COPY_MOVE(Output)
    ~Output() = default;

    /// Plays the voice. Any thread; waits neither for the sound server nor for a file.
    void play(const std::shared_ptr<Voice> &voice);

    /// Ends all voices and lets the threads end as soon as they can. Nothing plays after this.
    void close();

private:
    [[nodiscard]] bool wakeUp();
    void changed();
    void keepTime();
    void runDevice();
    [[nodiscard]] bool runStream(std::unique_lock<std::mutex> &lock);
    [[nodiscard]] bool isWanted() const { return _isSounding && !_isClosed; }

    const bool _hasDevice;
    const int _sampleRate;
    const QByteArray _title;
    Workers _workers;
    Mixer _mixer;

    std::mutex _mutex;
    std::condition_variable _changed;
    bool _hasNews = false; // wakes the thread that keeps the time
    bool _isSounding = false;
    bool _hasDeviceThread = false;
    bool _streamIsLost = false;
    bool _isClosed = false;
};
