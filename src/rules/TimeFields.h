#pragma once

#include <QtGlobal>

/// A duration as the hours, minutes and seconds fields of a timer hold it. There are no days, so
/// hours may exceed 24.
struct TimeFields
{
    qint32 hours = 0;
    qint32 minutes = 0;
    /// With the fraction, which the field shows.
    float seconds = 0;

    /// Splits the seconds into fields. Hours and minutes are cut toward zero; times beyond 32 bits
    /// are limited, and NaN gives zeros.
    [[nodiscard]] static TimeFields fromSeconds(double seconds);

    /// hours×3600 + minutes×60 + seconds as a signed 32-bit integer, which wraps around.
    [[nodiscard]] static qint32 total(qint32 hours, qint32 minutes, qint32 seconds);
};
