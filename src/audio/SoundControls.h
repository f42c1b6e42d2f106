#pragma once

#include <atomic>

/// What may change about a sound while it plays. Written by the main thread, read by the thread
/// that mixes.
struct SoundControls
{
    /// From 0 to 1.
    std::atomic<float> volume = 1.0F;

    std::atomic<bool> loops = false;
};
