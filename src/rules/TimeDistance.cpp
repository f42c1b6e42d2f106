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

/// From the largest to the smallest.
constexpr std::array kUnits{
    Unit{86400, QT_TRANSLATE_NOOP("TimeDistance", "%1 d")},
    Unit{3600, QT_TRANSLATE_NOOP("TimeDistance", "%1 h")},
    Unit{60, QT_TRANSLATE_NOOP("TimeDistance", "%1 min")},
    Unit{1, QT_TRANSLATE_NOOP("TimeDistance", "%1 s")},
};

QString tr(const char *text)
{
    return QCoreApplication::translate("TimeDistance", text);
}
} // namespace

QString TimeDistance::text(qint64 seconds)
{
    if (seconds <= 0)
        return tr("now");
    const auto *largest = std::ranges::find_if(
        kUnits, [seconds](const Unit &unit) { return unit.seconds <= seconds; });
    QString text = tr(largest->name).arg(seconds / largest->seconds);
    if (const auto *smaller = std::next(largest); smaller != kUnits.end()) {
        const qint64 count = seconds % largest->seconds / smaller->seconds;
        if (count != 0)
            text += QLatin1Char(' ') + tr(smaller->name).arg(count);
    }
    return tr("in %1").arg(text);
}
