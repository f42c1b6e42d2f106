#pragma once

#include "audio/SoundBytes.h"

#include <QString>

#include <chrono>
#include <limits>

/// How long a file may deliver nothing before something else is done in its place.
inline constexpr std::chrono::seconds kPatienceForFiles{2};

/// Where a sound comes from.
struct SoundSource
{
    /// The path of a file, or the name of a sound of the program.
    QString name;
    OpenSoundBytes open;
};

/// What is known of a sound. The defaults stand for a file that has not answered yet.
struct SoundFacts
{
    /// In seconds; 0 if the source cannot be played.
    double duration = std::numeric_limits<double>::infinity();
    /// Frames per second; 0 if unknown.
    int sampleRate = 0;
    bool isMissing = false;

    /// Opens the source once. Waits for the disk, so the main thread may call it only for a sound
    /// of the program.
    [[nodiscard]] static SoundFacts read(const SoundSource &source);
};
