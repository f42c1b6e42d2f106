#include "rules/Preset.h"

#include "base/Integers.h"
#include "rules/FinishActions.h"
#include "rules/TimeFormat.h"
#include "rules/TimerSettings.h"
#include "rules/TimerTexts.h"

QString Preset::key(quint32 number)
{
    return QStringLiteral("Preset %1").arg(number);
}

QVariantMap Preset::defaultRecord(qint32 number)
{
    constexpr qint64 minutesPerNumber = 10;
    return {
        {QStringLiteral("hours"), 0},
        {QStringLiteral("minutes"), wrappedToInteger(number * minutesPerNumber)},
        {QStringLiteral("seconds"), 0},
        {QStringLiteral("finishOption"),
         FinishActions::row(FinishAction::Nothing).stored.toString()},
        {QStringLiteral("title"), QStringLiteral("Preset %1").arg(number)},
    };
}

QString Preset::text(const TimerSettings &settings)
{
    const QString name = settings.title.isEmpty() ? kUnnamedTitle.toString() : settings.title;
    return name + QStringLiteral(" - ") +
           TimeFormat::hmsString(settings.hours, settings.minutes, settings.seconds);
}
