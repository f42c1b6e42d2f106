#include "sounds/SoundChoice.h"

#include "base/Service.h"
#include "rules/SoundEntries.h"

std::unique_ptr<Sound> soundForChoice(const QString &choice)
{
    SoundSystem &sounds = Service<SoundSystem>::current();
    const QString builtIn = SoundEntries::builtInFile(choice);
    return builtIn.isEmpty() ? sounds.soundWithContentsOfFile(choice) : sounds.soundNamed(builtIn);
}
