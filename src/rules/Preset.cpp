#include "rules/Preset.h"

#include "base/Integers.h"
#include "base/Keys.h"
#include "rules/FinishActions.h"
#include "rules/TimeFormat.h"
#include "rules/TimerSettings.h"
#include "rules/TimerTexts.h"

#include <QCoreApplication>

namespace
{
//: In the display of a timer opened from a preset; %1 is its number.
constexpr const char *kOpenedMark = QT_TRANSLATE_NOOP("Preset", "Preset %1");
//: In the display of a timer saved into a preset; %1 is its number.
constexpr const char *kSavedMark = QT_TRANSLATE_NOOP("Preset", "Saved to Preset %1");

QString translated(const char *text)
{
    return QCoreApplication::translate("Preset", text);
}

/// Whether the text is the pattern with something in place of its %1.
bool fits(const QString &text, const QString &pattern)
{
    const QString place = QStringLiteral("%1");
    return text.startsWith(pattern.section(place, 0, 0)) &&
           text.endsWith(pattern.section(place, 1));
}
} // namespace

QString Preset::key(quint32 number)
{
    return Keys::kPresetPrefix.toString() + QString::number(number);
}

QString Preset::openedMark(const QString &key)
{
    return translated(kOpenedMark).arg(key.mid(Keys::kPresetPrefix.size()));
}

QString Preset::savedMark(qint32 number)
{
    return translated(kSavedMark).arg(number);
}

bool Preset::isMark(const QString &text)
{
    return fits(text, translated(kOpenedMark)) || fits(text, translated(kSavedMark));
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
    return TimerTexts::nameAndTime(
        name, TimeFormat::hmsString(settings.hours, settings.minutes, settings.seconds));
}
