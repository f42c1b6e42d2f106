#include "controls/WebbyComboBox.h"

#include <benchmark/benchmark.h>

// A combo box with as many sounds as somebody may have collected.

namespace
{
QString path(qint64 number)
{
    return QStringLiteral("/home/somebody/Music/sound %1.wav").arg(number);
}

void fill(WebbyComboBox &combo, qint64 count)
{
    for (qint64 i = 0; i < count; ++i)
        combo.addDataObject(path(i), QStringLiteral("sound %1").arg(i));
}

void fillCombo(benchmark::State &state)
{
    for (auto _ : state) {
        WebbyComboBox combo;
        fill(combo, state.range(0));
    }
}
BENCHMARK(fillCombo)->RangeMultiplier(10)->Range(10, 1000)->Unit(benchmark::kMicrosecond);

void selectInCombo(benchmark::State &state)
{
    WebbyComboBox combo;
    fill(combo, state.range(0));
    const QString last = path(state.range(0) - 1);
    for (auto _ : state) {
        combo.setCurrentIndex(-1);
        combo.selectItemWithDataObjectValue(last);
    }
    if (combo.dataObjectOfSelectedItem() != last)
        state.SkipWithError("the entry is not selected");
}
BENCHMARK(selectInCombo)->RangeMultiplier(10)->Range(10, 1000)->Unit(benchmark::kMicrosecond);

void lookUpInCombo(benchmark::State &state)
{
    WebbyComboBox combo;
    fill(combo, state.range(0));
    const QString missing = path(-1);
    for (auto _ : state)
        benchmark::DoNotOptimize(combo.containsDataObject(missing));
}
BENCHMARK(lookUpInCombo)->RangeMultiplier(10)->Range(10, 1000)->Unit(benchmark::kMicrosecond);
} // namespace
