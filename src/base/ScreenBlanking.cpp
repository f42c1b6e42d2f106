#include "base/ScreenBlanking.h"

void ScreenBlanking::inhibit(const QObject &asker, const QString &reason)
{
    const bool first = _askers.isEmpty();
    _askers.insert(&asker);
    if (first)
        begin(reason);
}

void ScreenBlanking::release(const QObject &asker)
{
    if (_askers.remove(&asker) && _askers.isEmpty())
        end();
}
