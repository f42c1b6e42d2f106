#pragma once

#include <chrono>
#include <functional>
#include <memory>

/// Runs functions on threads of their own and knows when all of them have come to an end. A
/// thread that is stuck can be left behind, so what a function uses must be its own. Copies
/// stand for the same threads.
class Workers final
{
public:
    Workers();

    /// Runs the function on a new thread; false when the system has none left.
    [[nodiscard]] bool start(std::function<void()> function);

    /// Waits until no function runs any more, but no longer than this.
    void waitUntilIdle(std::chrono::milliseconds limit);

private:
    struct State;
    std::shared_ptr<State> _state;
};
