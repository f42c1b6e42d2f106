#include "audio/Workers.h"

#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>

struct Workers::State
{
    std::mutex mutex;
    std::condition_variable becameIdle;
    int running = 0;

    void count(int change)
    {
        const std::lock_guard lock(mutex);
        running += change;
        if (running == 0)
            becameIdle.notify_all();
    }
};

Workers::Workers() : _state(std::make_shared<State>()) {}

bool Workers::start(std::function<void()> function)
{
    _state->count(1);
    try {
        std::thread([state = _state, run = std::move(function)]() mutable {
            run();
            // Destroys what the function holds before it counts as ended.
            run = nullptr;
            state->count(-1);
        }).detach();
        return true;
    } catch (const std::system_error &) {
        _state->count(-1);
        return false;
    }
}

void Workers::waitUntilIdle(std::chrono::milliseconds limit)
{
    std::unique_lock lock(_state->mutex);
    _state->becameIdle.wait_for(lock, limit, [this] { return _state->running == 0; });
}
