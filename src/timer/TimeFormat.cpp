#include "timer/TimeFormat.h"

#include "timer/Integers.h"

#include <cmath>

namespace
{
QString part(qint32 count, char unit)
{
    return count == 0 ? QString() : QString::asprintf("%d%c ", count, unit);
}
} // namespace

QString TimeFormat::stringForTime(double seconds)
{
    // Not even a fraction of a second shows as nothing, only no time at all.
    if (seconds == 0.0)
        return {};
    constexpr qint32 mostDaysWithMinutes = 9;
    const qint32 days = cutToInteger(seconds / 86400.0);
    const qint32 whole = cutToInteger(seconds);

    QString text = part(days, 'd');
    text += part((whole / 3600) % 24, 'h');
    if (days <= mostDaysWithMinutes)
        text += part((whole / 60) % 60, 'm');
    if (days == 0)
        text += QString::asprintf("%ds", whole % 60);
    return text;
}

QString TimeFormat::msStringForTime(double seconds)
{
    return QString::asprintf("%03d", cutToInteger(std::fmod(seconds, 1.0) * 1000.0));
}

QString TimeFormat::hmsString(qint32 hours, qint32 minutes, qint32 seconds)
{
    return QString::asprintf("%dh %dm %ds", hours, minutes, seconds);
}
