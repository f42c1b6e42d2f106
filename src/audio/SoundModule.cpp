#include "audio/CubebSoundSystem.h"

/// The function that LazySoundSystem calls in the module. The caller owns the system.
extern "C" Q_DECL_EXPORT SoundSystem *wufferMakeSoundSystem();

SoundSystem *wufferMakeSoundSystem()
{
    return std::make_unique<CubebSoundSystem>().release();
}
