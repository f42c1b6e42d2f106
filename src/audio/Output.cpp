#include "audio/Output.h"

#include "audio/CubebStream.h"
#include "audio/Voice.h"

#include <utility>

using namespace std::chrono_literals;

namespace
{
/// How long to wait before another try to open a device.
constexpr auto kRetryAfter = 1s;
} // namespace

Output::Output(Device device, int sampleRate, QByteArray title, Workers workers) :
    _hasDevice(device == Device::Default), _sampleRate(sampleRate), _title(std::move(title)),
    _workers(std::move(workers)), _mixer(sampleRate)
{
    if (!_hasDevice)
        _mixer.forgetDevice();
}

void Output::play(const std::shared_ptr<Voice> &voice)
{
    const std::lock_guard lock(_mutex);
    if (_isClosed || !wakeUp()) {
        voice->finish();
        return;
    }
    _mixer.add(voice);
    changed();
}

void Output::close()
{
    const std::lock_guard lock(_mutex);
    _isClosed = true;
    changed();
}

void Output::changed()
{
    _hasNews = true;
    _changed.notify_all();
}

bool Output::wakeUp()
{
    if (!_isSounding) {
        _isSounding = _workers.start([self = shared_from_this()] { self->keepTime(); });
        if (_hasDevice)
            _mixer.expectDevice();
    }
    // The device thread of the previous sound may still be closing its stream.
    if (_isSounding && _hasDevice && !_hasDeviceThread)
        _hasDeviceThread = _workers.start([self = shared_from_this()] { self->runDevice(); });
    return _isSounding;
}

void Output::keepTime()
{
    std::unique_lock lock(_mutex);
    while (!_isClosed) {
        lock.unlock();
        const std::optional<std::chrono::nanoseconds> pause = _mixer.keepTime();
        lock.lock();
        if (pause)
            _changed.wait_for(lock, *pause, [this] { return std::exchange(_hasNews, false); });
        else if (!_mixer.hasNewcomers())
            break;
    }
    if (_isClosed)
        _mixer.finish();
    _isSounding = false;
    _changed.notify_all();
}

void Output::runDevice()
{
    std::unique_lock lock(_mutex);
    while (isWanted()) {
        if (runStream(lock))
            continue;
        _mixer.forgetDevice();
        changed();
        _changed.wait_for(lock, kRetryAfter, [this] { return !isWanted(); });
    }
    _hasDeviceThread = false;
}

/// Opens a stream and keeps it while it is wanted; false if it did not open or has failed.
bool Output::runStream(std::unique_lock<std::mutex> &lock)
{
    _streamIsLost = false;
    lock.unlock();
    const auto render = [this](std::span<float> stereo) { _mixer.render(stereo); };
    const auto lost = [this] {
        const std::lock_guard locked(_mutex);
        _streamIsLost = true;
        _changed.notify_all();
    };
    std::unique_ptr<CubebStream> stream = CubebStream::open(_sampleRate, _title, render, lost);
    lock.lock();
    if (stream)
        _changed.wait(lock, [this] { return _streamIsLost || !isWanted(); });
    const bool wasGood = stream && !_streamIsLost;
    lock.unlock();
    stream.reset();
    lock.lock();
    return wasGood;
}
