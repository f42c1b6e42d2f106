#pragma once

#include <QString>
#include <QVariant>

#include <array>

struct TimerSettings;

/// The ten numbered presets: everything about them that needs no timer.
namespace Preset
{
/// Their numbers in the order of the keys, which every list uses.
inline constexpr std::array kNumbers{1, 2, 3, 4, 5, 6, 7, 8, 9, 0};

/// The key of a preset in the settings: "Preset 3". Any number is allowed.
[[nodiscard]] QString key(quint32 number);

/// The mark of a timer opened from the preset with this key, "Preset 3", and of a timer saved into
/// a preset, "Saved to Preset 3"; both translated.
[[nodiscard]] QString openedMark(const QString &key);
[[nodiscard]] QString savedMark(qint32 number);

/// Whether the text is such a mark, of any preset.
[[nodiscard]] bool isMark(const QString &text);

/// What a preset holds before the user has saved it: ten minutes times its number.
[[nodiscard]] QVariantMap defaultRecord(qint32 number);

/// The text for a preset in lists: "Tea - 0h 5m 0s". Without a title it is called "Wuffer".
[[nodiscard]] QString text(const TimerSettings &settings);
} // namespace Preset
