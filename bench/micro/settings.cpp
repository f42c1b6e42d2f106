#include "base/UserDefaults.h"
#include "rules/TimerSettings.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

// What a timer remembers, on its way to the file and back.

namespace
{
/// One of which nothing is missing.
TimerSettings fullSettings()
{
    TimerSettings settings;
    settings.title = QStringLiteral("Tea for two");
    settings.hours = 1;
    settings.minutes = 2;
    settings.seconds = 3;
    settings.keepWuffing = true;
    settings.finishOption = QStringLiteral("Start a Preset");
    settings.presetSelection = 3;
    settings.individualAlarmPath = QStringLiteral("/home/somebody/Music/gong.wav");
    settings.individualCountdownPath = QStringLiteral("/home/somebody/Music/tick.wav");
    return settings;
}

/// As many as a settings file holds: that of the next launch, and ten presets.
void writeRecords(UserDefaults &defaults)
{
    for (int number = 0; number < 11; ++number)
        defaults.setObject(fullSettings().record(), QStringLiteral("Preset %1").arg(number));
    defaults.synchronize();
}

QString pathIn(const QTemporaryDir &folder)
{
    return folder.filePath(QStringLiteral("settings.json"));
}

void recordOfSettings(benchmark::State &state)
{
    const TimerSettings settings = fullSettings();
    for (auto _ : state)
        benchmark::DoNotOptimize(settings.record());
}
BENCHMARK(recordOfSettings);

void settingsOfRecord(benchmark::State &state)
{
    const QVariantMap record = fullSettings().record();
    for (auto _ : state)
        benchmark::DoNotOptimize(TimerSettings::fromRecord(record));
}
BENCHMARK(settingsOfRecord);

void writeSettingsFile(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString key = QStringLiteral("turn");
    UserDefaults defaults(pathIn(folder));
    writeRecords(defaults);
    int turn = 0;
    for (auto _ : state) {
        // Nothing is written of a file in which nothing has changed.
        defaults.setObject(++turn, key);
        defaults.synchronize();
    }
    if (UserDefaults(pathIn(folder)).integerForKey(key) != turn)
        state.SkipWithError("the settings cannot be written");
}
BENCHMARK(writeSettingsFile)->Unit(benchmark::kMicrosecond);

void readSettingsFile(benchmark::State &state)
{
    const QTemporaryDir folder;
    {
        UserDefaults defaults(pathIn(folder));
        writeRecords(defaults);
    }
    for (auto _ : state) {
        const UserDefaults defaults(pathIn(folder));
        const QVariantMap record = defaults.dictionaryForKey(QStringLiteral("Preset 3"));
        if (TimerSettings::fromRecord(record) != fullSettings())
            state.SkipWithError("the settings are not those that were written");
    }
}
BENCHMARK(readSettingsFile)->Unit(benchmark::kMicrosecond)->Iterations(300);
} // namespace
