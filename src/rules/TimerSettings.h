#pragma once

#include <QString>
#include <QVariant>

#include <optional>

/// What a timer remembers: its settings as the user sees them, and the flat dictionary in which
/// they are stored.
struct TimerSettings
{
    QString title;
    qint32 hours = 0;
    qint32 minutes = 0;
    qint32 seconds = 0;
    bool keepWuffing = false;
    bool fullScreen = false;
    /// Missing when the timer is to start another, because a link ends with the windows, and when
    /// nothing is selected.
    std::optional<QString> finishOption;
    /// The place in the list of presets, from 0; only where one is to be started.
    std::optional<qint32> presetSelection;
    /// The timer's own sounds, which presets keep and the settings for the next launch do not.
    std::optional<QString> individualAlarmPath;
    std::optional<QString> individualCountdownPath;

    /// Reads a dictionary that anybody may have written. What is missing or of another type than
    /// expected reads as 0, off, empty or missing; numbers are limited to 32 bits.
    [[nodiscard]] static TimerSettings fromRecord(const QVariantMap &record);

    /// The dictionary to store. What is missing here has no key there.
    [[nodiscard]] QVariantMap record() const;

    [[nodiscard]] bool operator==(const TimerSettings &) const = default;
};
