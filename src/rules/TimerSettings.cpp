#include "rules/TimerSettings.h"

#include "base/PropertyList.h"

namespace
{
const QString kTitle = QStringLiteral("title");
const QString kHours = QStringLiteral("hours");
const QString kMinutes = QStringLiteral("minutes");
const QString kSeconds = QStringLiteral("seconds");
const QString kKeepWuffing = QStringLiteral("keepWuffing");
const QString kFullScreen = QStringLiteral("fullScreen");
const QString kFinishOption = QStringLiteral("finishOption");
const QString kPresetSelection = QStringLiteral("presetSelection");
const QString kIndividualAlarmPath = QStringLiteral("individualAlarmPath");
const QString kIndividualCountdownPath = QStringLiteral("individualCountdownPath");

template<class Value>
void put(QVariantMap &record, const QString &key, const std::optional<Value> &value)
{
    if (value)
        record[key] = *value;
}
} // namespace

TimerSettings TimerSettings::fromRecord(const QVariantMap &record)
{
    using namespace PropertyList;
    TimerSettings settings;
    settings.title = stringFrom(record[kTitle]).value_or(QString());
    settings.hours = integerFrom(record[kHours]);
    settings.minutes = integerFrom(record[kMinutes]);
    settings.seconds = integerFrom(record[kSeconds]);
    settings.keepWuffing = boolFrom(record[kKeepWuffing]);
    settings.fullScreen = boolFrom(record[kFullScreen]);
    settings.finishOption = stringFrom(record[kFinishOption]);
    if (numberFrom(record[kPresetSelection]))
        settings.presetSelection = integerFrom(record[kPresetSelection]);
    settings.individualAlarmPath = stringFrom(record[kIndividualAlarmPath]);
    settings.individualCountdownPath = stringFrom(record[kIndividualCountdownPath]);
    return settings;
}

QVariantMap TimerSettings::record() const
{
    QVariantMap record{
        {kTitle, title},
        {kHours, hours},
        {kMinutes, minutes},
        {kSeconds, seconds},
        {kKeepWuffing, int(keepWuffing)},
        {kFullScreen, int(fullScreen)},
    };
    put(record, kFinishOption, finishOption);
    put(record, kPresetSelection, presetSelection);
    put(record, kIndividualAlarmPath, individualAlarmPath);
    put(record, kIndividualCountdownPath, individualCountdownPath);
    return record;
}
