#include "rules/KeepWuffing.h"

#include <QCoreApplication>

QString KeepWuffing::hint(bool stopwatch, bool somethingFollows, bool muted)
{
    const auto tr = [](const char *text) {
        return QCoreApplication::translate("KeepWuffing", text);
    };
    if (stopwatch)
        return tr("A stopwatch has no alarm that could go on");
    if (somethingFollows)
        return tr("Only a timer that is to “Do Nothing” when finished can go on wuffing");
    if (muted)
        return tr("The sound of all timers is off");
    return tr("Repeat the alarm sound until you press Reset");
}
