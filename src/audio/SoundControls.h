#pragma once

#include <atomic>

/// The settings of a sound that may change while it plays. The main thread writes them, the mixing
/// thread reads them.
struct SoundControls
{
    /// From 0 to 1.
    std::atomic<float> volume = 1.0F;

    std::atomic<bool> loops = false;
};
