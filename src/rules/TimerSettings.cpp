#include "rules/TimerSettings.h"

#include "base/PropertyList.h"

namespace
{
template<class Value>
void put(QVariantMap &record, const SettingsKey<Value> &key,
         const std::type_identity_t<Value> &value)
{
    record[key.text()] = PropertyList::stored(value);
}

template<class Value>
void put(QVariantMap &record, const SettingsKey<std::optional<Value>> &key,
         const std::optional<Value> &value)
{
    if (value)
        record[key.text()] = *value;
}
} // namespace

TimerSettings TimerSettings::fromRecord(const QVariantMap &record)
{
    using namespace TimerKeys;
    using PropertyList::valueIn;
    TimerSettings settings;
    settings.title = valueIn(record, kTitle);
    settings.hours = valueIn(record, kHours);
    settings.minutes = valueIn(record, kMinutes);
    settings.seconds = valueIn(record, kSeconds);
    settings.keepWuffing = valueIn(record, kKeepWuffing);
    settings.fullScreen = valueIn(record, kFullScreen);
    settings.finishOption = valueIn(record, kFinishOption);
    settings.presetSelection = valueIn(record, kPresetSelection);
    settings.individualAlarmPath = valueIn(record, kIndividualAlarmPath);
    settings.individualCountdownPath = valueIn(record, kIndividualCountdownPath);
    return settings;
}

QVariantMap TimerSettings::record() const
{
    using namespace TimerKeys;
    QVariantMap record;
    put(record, kTitle, title);
    put(record, kHours, hours);
    put(record, kMinutes, minutes);
    put(record, kSeconds, seconds);
    put(record, kKeepWuffing, keepWuffing);
    put(record, kFullScreen, fullScreen);
    put(record, kFinishOption, finishOption);
    put(record, kPresetSelection, presetSelection);
    put(record, kIndividualAlarmPath, individualAlarmPath);
    put(record, kIndividualCountdownPath, individualCountdownPath);
    return record;
}
