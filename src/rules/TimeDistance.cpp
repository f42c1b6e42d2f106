#include "rules/TimeDistance.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace
{
struct Unit
{
    qint64 seconds;
    const char *name;
};

class Texts final
{
    Q_DECLARE_TR_FUNCTIONS(TimeDistance)
};

/// From the largest to the smallest.
constexpr std::array kUnits{
    //: Days, hours, minutes and seconds, abbreviated, as in “in 4 h 12 min”.
    Unit{86400, QT_TRANSLATE_NOOP("TimeDistance", "%1 d")},
    Unit{3600, QT_TRANSLATE_NOOP("TimeDistance", "%1 h")},
    Unit{60, QT_TRANSLATE_NOOP("TimeDistance", "%1 min")},
    Unit{1, QT_TRANSLATE_NOOP("TimeDistance", "%1 s")},
};
} // namespace

QString TimeDistance::text(qint64 seconds)
{
    if (seconds <= 0)
        //: The time that is left until a date: none.
        return Texts::tr("now");
    const auto *largest = std::ranges::find_if(
        kUnits, [seconds](const Unit &unit) { return unit.seconds <= seconds; });
    QString text = Texts::tr(largest->name).arg(seconds / largest->seconds);
    if (const auto *smaller = std::next(largest); smaller != kUnits.end()) {
        const qint64 count = seconds % largest->seconds / smaller->seconds;
        if (count != 0)
            //: Two units of a time, the larger first: “4 h 12 min”.
            text = Texts::tr("%1 %2").arg(text, Texts::tr(smaller->name).arg(count));
    }
    //: The time that is left until a date: “in 4 h 12 min”.
    return Texts::tr("in %1").arg(text);
}
