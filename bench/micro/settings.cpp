#include "base/JsonSettingsFormat.h"
#include "rules/TimerSettings.h"

#include <QFile>
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
void writeRecords(QSettings &file)
{
    for (int number = 0; number < 11; ++number)
        file.setValue(QStringLiteral("Preset %1").arg(number), fullSettings().record());
    file.sync();
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
    QSettings file(pathIn(folder), JsonSettingsFormat::format());
    writeRecords(file);
    int turn = 0;
    for (auto _ : state) {
        // Nothing is written of a file in which nothing has changed.
        file.setValue(QStringLiteral("turn"), ++turn);
        file.sync();
    }
    if (file.status() != QSettings::NoError)
        state.SkipWithError("the settings cannot be written");
}
BENCHMARK(writeSettingsFile)->Unit(benchmark::kMicrosecond);

void readSettingsFile(benchmark::State &state)
{
    const QTemporaryDir folder;
    {
        QSettings file(pathIn(folder), JsonSettingsFormat::format());
        writeRecords(file);
    }
    int turn = 0;
    for (auto _ : state) {
        // The same file under another name is not the one that QSettings has read already.
        state.PauseTiming();
        const QString copy = pathIn(folder) + QString::number(++turn);
        QFile::copy(pathIn(folder), copy);
        state.ResumeTiming();
        const QSettings file(copy, JsonSettingsFormat::format());
        const QVariantMap record = file.value(QStringLiteral("Preset 3")).toMap();
        if (TimerSettings::fromRecord(record) != fullSettings())
            state.SkipWithError("the settings are not those that were written");
    }
}
BENCHMARK(readSettingsFile)->Unit(benchmark::kMicrosecond)->Iterations(300);
} // namespace
