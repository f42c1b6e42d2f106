#include "timer/SoundChoice.h"

#include "platform/Service.h"
#include "timer/TimerTexts.h"

std::unique_ptr<Sound> soundForChoice(const QString &choice)
{
    SoundSystem &sounds = Service<SoundSystem>::current();
    if (choice == kWuffSound)
        return sounds.soundNamed(QStringLiteral("wolvesWuff.wav"));
    if (choice == kCrowSound)
        return sounds.soundNamed(QStringLiteral("crow.wav"));
    return sounds.soundWithContentsOfFile(choice);
}
