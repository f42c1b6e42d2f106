#include "audio/CubebSoundSystem.h"

/// What LazySoundSystem looks for in the module; the system belongs to the caller.
extern "C" Q_DECL_EXPORT SoundSystem *wufferMakeSoundSystem();

SoundSystem *wufferMakeSoundSystem()
{
    return std::make_unique<CubebSoundSystem>().release();
}
