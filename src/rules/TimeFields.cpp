#include "rules/TimeFields.h"

#include "base/Integers.h"

TimeFields TimeFields::fromSeconds(double seconds)
{
    seconds = limitedToIntegers(seconds);
    const qint32 whole = cutToInteger(seconds);
    const qint32 hours = whole / 3600;
    const qint32 minutes = (whole - hours * 3600) / 60;
    const double rest = seconds - hours * 3600.0 - minutes * 60.0;
    return {hours, minutes, static_cast<float>(rest)};
}

qint32 TimeFields::total(qint32 hours, qint32 minutes, qint32 seconds)
{
    return wrappedToInteger(qint64(hours) * 3600 + qint64(minutes) * 60 + seconds);
}
