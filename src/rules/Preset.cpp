#include "rules/Preset.h"

#include "base/Integers.h"
#include "base/Keys.h"
#include "rules/FinishActions.h"
#include "rules/TimeFormat.h"
#include "rules/TimerSettings.h"
#include "rules/TimerTexts.h"

QString Preset::key(quint32 number)
{
    return Keys::kPresetPrefix.toString() + QString::number(number);
}

QVariantMap Preset::defaultRecord(qint32 number)
{
    constexpr qint64 minutesPerNumber = 10;
    return {
        {TimerKeys::kHours.text(), 0},
        {TimerKeys::kMinutes.text(), wrappedToInteger(number * minutesPerNumber)},
        {TimerKeys::kSeconds.text(), 0},
        {TimerKeys::kFinishOption.text(),
         FinishActions::row(FinishAction::Nothing).stored.toString()},
        {TimerKeys::kTitle.text(), QStringLiteral("Preset %1").arg(number)},
    };
}

QString Preset::text(const TimerSettings &settings)
{
    const QString name = settings.title.isEmpty() ? kUnnamedTitle.toString() : settings.title;
    return name + QStringLiteral(" - ") +
           TimeFormat::hmsString(settings.hours, settings.minutes, settings.seconds);
}
