#pragma once

#include <QString>
#include <QVariant>

#include <array>

struct TimerSettings;

/// The ten numbered presets: what can be said of them without a timer.
namespace Preset
{
/// Their numbers in the order of the keyboard, in which they are always listed.
inline constexpr std::array kNumbers{1, 2, 3, 4, 5, 6, 7, 8, 9, 0};

/// The key of a preset in the settings: "Preset 3". Any number will do.
[[nodiscard]] QString key(quint32 number);

/// What a preset holds before anything was saved into it: ten minutes times its number.
[[nodiscard]] QVariantMap defaultRecord(qint32 number);

/// A preset in a list: "Tea - 0h 5m 0s". One without a title is called "Wuffer".
[[nodiscard]] QString text(const TimerSettings &settings);
} // namespace Preset
