#include "sounds/SoundChoice.h"

#include "base/Service.h"
#include "rules/TimerTexts.h"

#include <algorithm>
#include <array>

namespace
{
struct BuiltInSound
{
    QStringView choice;
    QStringView fileName;
};

constexpr std::array kBuiltInSounds{
    BuiltInSound{kWuffSound, u"wolvesWuff.wav"},
    BuiltInSound{kCrowSound, u"crow.wav"},
};
} // namespace

QString builtInSoundFile(QStringView choice)
{
    const auto *found = std::ranges::find(kBuiltInSounds, choice, &BuiltInSound::choice);
    return found == kBuiltInSounds.end() ? QString() : found->fileName.toString();
}

std::unique_ptr<Sound> soundForChoice(const QString &choice)
{
    SoundSystem &sounds = Service<SoundSystem>::current();
    const QString builtIn = builtInSoundFile(choice);
    return builtIn.isEmpty() ? sounds.soundWithContentsOfFile(choice) : sounds.soundNamed(builtIn);
}
