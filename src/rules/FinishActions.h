#pragma once

#include <QStringView>

#include <array>

/// What a timer does when its alarm is over.
enum class FinishAction {
    /// Nothing is selected. It is not listed, and nothing follows.
    None,
    Nothing,
    Restart,
    Preset,
    Wuffer,
};

/// The table of the finish actions, with a row for each. Adding an action means adding a row, and,
/// where it does something new, a case where the timer carries out what runs.
namespace FinishActions
{
/// What the picker beside the action lists.
enum class Picker {
    /// It is hidden.
    None,
    Presets,
    /// Only the timer that is linked.
    Target,
};

/// What runs after the alarm.
enum class Runs {
    Nothing,
    ThisTimer,
    ChosenPreset,
    TargetTimer,
};

struct Row
{
    FinishAction action;
    /// How it is written in the settings, whatever the language.
    QStringView stored;
    /// What the list shows, to be translated in the context "FinishActions".
    const char *shown;
    Picker picker;
    /// Whether the alarm may go on until the user stops it: only where nothing waits for its end.
    bool allowsKeepWuffing;
    /// Whether it outlives the program. A link ends with the windows.
    bool isStored;
    Runs runs;
};

/// Those that can be chosen, in the order of the list.
[[nodiscard]] const std::array<Row, 4> &rows();

/// The row of the action; for None one that lists nothing, allows nothing and runs nothing.
[[nodiscard]] const Row &row(FinishAction action);

/// The action that is stored by this text; None for any other.
[[nodiscard]] FinishAction fromStored(QStringView text);

/// What the list shows for it, in the language of the program.
[[nodiscard]] QString shownText(const Row &row);
} // namespace FinishActions
