#include "rules/TimeFormat.h"

#include "base/Integers.h"

#include <QCoreApplication>

#include <cmath>

namespace
{
class Texts final
{
    Q_DECLARE_TR_FUNCTIONS(TimeFormat)
};

QString inSeconds(qint32 count)
{
    //: The last part of a running time, such as “1h 5m 3s”.
    return Texts::tr("%1s").arg(count);
}

/// Appends the number in the pattern of its unit, unless it is 0.
void append(QString &text, qint32 count, const char *unit)
{
    if (count != 0)
        text += Texts::tr(unit).arg(count);
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
    //: The parts of a running time, such as “1h 5m 3s”: days, hours, minutes and seconds. They
    //: stand side by side, so all but the seconds end with a blank. The display has room for ten
    //: characters at its largest size.
    append(text, days, QT_TRANSLATE_NOOP("TimeFormat", "%1d "));
    append(text, (whole / 3600) % 24, QT_TRANSLATE_NOOP("TimeFormat", "%1h "));
    if (days <= mostDaysWithMinutes)
        append(text, (whole / 60) % 60, QT_TRANSLATE_NOOP("TimeFormat", "%1m "));
    if (days == 0)
        text += inSeconds(whole % 60);
    return text;
}

QString TimeFormat::zero()
{
    return inSeconds(0);
}

QString TimeFormat::msStringForTime(double seconds)
{
    return QString::asprintf("%03d", cutToInteger(std::fmod(seconds, 1.0) * 1000.0));
}

QString TimeFormat::hmsString(qint32 hours, qint32 minutes, qint32 seconds)
{
    //: The time set in a timer: hours, minutes and seconds.
    return Texts::tr("%1h %2m %3s").arg(hours).arg(minutes).arg(seconds);
}
