#pragma once

#include <chrono>
#include <functional>
#include <memory>

/// Runs each function on a new thread, and can wait until all have ended. A thread that hangs may
/// outlive this object, so a function must own all that it uses. Copies share the same threads.
class Workers final
{
public:
    Workers();

    /// Runs the function on a new thread; false if the system cannot start one.
    [[nodiscard]] bool start(std::function<void()> function);

    /// Waits until no function is running, but no longer than the limit.
    void waitUntilIdle(std::chrono::milliseconds limit);

private:
    struct State;
    std::shared_ptr<State> _state;
};
