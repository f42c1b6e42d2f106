#pragma once

#include "support/PreferencesFixture.h"

inline const auto kWuff = QStringLiteral("Wuff (Default)");
inline const auto kBell = QStringLiteral("/sounds/Bell.aiff");
inline const auto kChime = QStringLiteral("/sounds/Chime.wav");

/// The preferences, with two sounds in the library, one of them on a disk that does not answer.
class SlowSoundsFixture : public PreferencesFixture
{
public:
    SlowSoundsFixture()
    {
        sounds.setFileDuration(kChime, 0.5);
        sounds.holdFile(kBell);
        set("soundHistory", QStringList{kBell, kChime});
    }

    [[nodiscard]] QWidget &page() const { return part<QWidget>("soundTab"); }
    [[nodiscard]] QStringList history() const
    {
        return defaults.stringArrayForKey(QStringLiteral("soundHistory"));
    }
    [[nodiscard]] QString stored(const char *key) const
    {
        return defaults.stringForKey(QString::fromLatin1(key)).value_or(QStringLiteral("(none)"));
    }
    [[nodiscard]] bool saysMissing() const
    {
        return !part<QLabel>("_alarmMissingLabel").isHidden();
    }
};
