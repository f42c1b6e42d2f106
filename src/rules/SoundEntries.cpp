#include "rules/SoundEntries.h"

#include "rules/PreferenceTexts.h"
#include "rules/TimerTexts.h"

#include <QCoreApplication>

#include <algorithm>

namespace
{
using SoundEntries::Row;

constexpr std::array kRows{
    //: A sound of the program: the bark of a dog.
    Row{SoundEntry::Wuff, kWuffSound, QT_TRANSLATE_NOOP("SoundEntries", "Wuff (Default)"),
        u"wolvesWuff.wav"},
    //: A sound of the program: the caw of a crow.
    Row{SoundEntry::Crow, kCrowSound, QT_TRANSLATE_NOOP("SoundEntries", "Crow (Default)"),
        u"crow.wav"},
    Row{SoundEntry::SelectAnother,
        kSelectAnotherSound,
        QT_TRANSLATE_NOOP("SoundEntries", "Select another sound..."),
        {}},
    Row{SoundEntry::ClearCustom,
        kClearCustomSounds,
        QT_TRANSLATE_NOOP("SoundEntries", "Clear custom sounds"),
        {}},
    Row{SoundEntry::Manage,
        kManageSounds,
        QT_TRANSLATE_NOOP("SoundEntries", "Manage Sounds..."),
        {}},
};

const Row *find(QStringView text)
{
    const auto *found = std::ranges::find(kRows, text, &Row::stored);
    return found == kRows.end() ? nullptr : found;
}
} // namespace

const Row &SoundEntries::row(SoundEntry entry)
{
    const auto *found = std::ranges::find(kRows, entry, &Row::entry);
    Q_ASSERT(found != kRows.end());
    return *found;
}

std::optional<SoundEntry> SoundEntries::fromStored(QStringView text)
{
    const Row *found = find(text);
    return found ? std::optional(found->entry) : std::nullopt;
}

QString SoundEntries::builtInFile(QStringView text)
{
    const Row *found = find(text);
    return found ? found->fileName.toString() : QString();
}

QString SoundEntries::shownText(SoundEntry entry)
{
    return QCoreApplication::translate("SoundEntries", row(entry).shown);
}
