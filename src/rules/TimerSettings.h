#pragma once

#include <QString>
#include <QVariant>

#include <optional>

/// The settings of a timer as the user sees them, and their conversion from and to the flat
/// dictionary that is stored.
struct TimerSettings
{
    QString title;
    qint32 hours = 0;
    qint32 minutes = 0;
    qint32 seconds = 0;
    bool keepWuffing = false;
    bool fullScreen = false;
    /// Missing if nothing is selected, or if the action starts another timer: that link ends with
    /// the windows.
    std::optional<QString> finishOption;
    /// The index in the list of presets; only if the action starts a preset.
    std::optional<qint32> presetSelection;
    /// The timer's own sounds. Presets store them, the settings for the next launch do not.
    std::optional<QString> individualAlarmPath;
    std::optional<QString> individualCountdownPath;

    /// Reads a stored dictionary, which users may have edited by hand. Missing values and those of
    /// a wrong type read as 0, off, empty or missing; numbers are limited to 32 bits.
    [[nodiscard]] static TimerSettings fromRecord(const QVariantMap &record);

    /// The dictionary to store; it has no keys for missing values.
    [[nodiscard]] QVariantMap record() const;

    [[nodiscard]] bool operator==(const TimerSettings &) const = default;
};
