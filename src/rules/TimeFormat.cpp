#include "rules/TimeFormat.h"

#include "base/Integers.h"

#include <cmath>

namespace
{
void append(QString &text, qint32 count, QLatin1String unit)
{
    if (count != 0)
        text += QString::number(count) + unit;
}
} // namespace

QString TimeFormat::stringForTime(double seconds)
{
    // Only exactly 0 gives an empty text; a fraction of a second gives "0s".
    if (seconds == 0.0)
        return {};
    constexpr qint32 mostDaysWithMinutes = 9;
    const qint32 days = cutToInteger(seconds / 86400.0);
    const qint32 whole = cutToInteger(seconds);

    QString text;
    append(text, days, QLatin1String("d "));
    append(text, (whole / 3600) % 24, QLatin1String("h "));
    if (days <= mostDaysWithMinutes)
        append(text, (whole / 60) % 60, QLatin1String("m "));
    if (days == 0)
        text += QString::number(whole % 60) + QLatin1Char('s');
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
