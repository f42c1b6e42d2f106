#pragma once

#include <QStringView>

#include <array>

/// What a timer does when its alarm is over.
enum class FinishAction {
    /// No action is selected. The combo does not list this value, and nothing runs.
    None,
    Nothing,
    Restart,
    Preset,
    Wuffer,
};

/// The table of the finish actions, one row for each. To add an action, add a row; if the action
/// runs something new, also add a value of Runs and the code that runs it.
namespace FinishActions
{
/// What the picker beside the action lists.
enum class Picker {
    /// The picker is hidden.
    None,
    Presets,
    /// Only the linked timer.
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
    /// The text in the settings, the same in every language.
    QStringView stored;
    /// The text in the list, to be translated in the context "FinishActions".
    const char *shown;
    Picker picker;
    /// Whether the alarm may repeat until the user stops it: only if nothing runs afterwards.
    bool allowsKeepWuffing;
    /// Whether the settings store the action. They store no link, because it ends with its windows.
    bool isStored;
    Runs runs;
};

/// The actions that the user can choose, in the order of the list.
[[nodiscard]] const std::array<Row, 4> &rows();

/// The row of the action; for None, a row that allows nothing and runs nothing.
[[nodiscard]] const Row &row(FinishAction action);

/// The action stored as this text; None for any other text.
[[nodiscard]] FinishAction fromStored(QStringView text);

/// The translated text for the list.
[[nodiscard]] QString shownText(const Row &row);
} // namespace FinishActions
