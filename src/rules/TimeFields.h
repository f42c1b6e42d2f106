#pragma once

#include <QtGlobal>

/// A duration as the hours, minutes and seconds fields of a timer hold it. Hours take any count;
/// there are no days.
struct TimeFields
{
    qint32 hours = 0;
    qint32 minutes = 0;
    /// Keeps the fraction, so that it shows.
    float seconds = 0;

    /// Takes the seconds apart, each part cut toward zero. Times beyond 32 bits are limited to
    /// them.
    [[nodiscard]] static TimeFields fromSeconds(double seconds);

    /// hours×3600 + minutes×60 + seconds as a signed 32-bit integer, which wraps round.
    [[nodiscard]] static qint32 total(qint32 hours, qint32 minutes, qint32 seconds);
};
