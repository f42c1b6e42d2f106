#include "rules/FinishActions.h"

#include "rules/TimerTexts.h"

#include <QCoreApplication>

#include <algorithm>

namespace
{
using namespace FinishActions;

constexpr std::array kRows{
    Row{FinishAction::Nothing, kWufferFinishedNothing,
        QT_TRANSLATE_NOOP("FinishActions", "Do Nothing"), Picker::None, true, true, Runs::Nothing},
    Row{FinishAction::Restart, kWufferFinishedRestart,
        QT_TRANSLATE_NOOP("FinishActions", "Loop this Wuffer"), Picker::None, false, true,
        Runs::ThisTimer},
    Row{FinishAction::Preset, kWufferFinishedPreset,
        QT_TRANSLATE_NOOP("FinishActions", "Start a Preset"), Picker::Presets, false, true,
        Runs::ChosenPreset},
    Row{FinishAction::Wuffer, kWufferFinishedWuffer,
        QT_TRANSLATE_NOOP("FinishActions", "Start other open Wuffer"), Picker::Target, false, false,
        Runs::TargetTimer},
};

constexpr Row kNone{FinishAction::None, {}, "", Picker::None, false, false, Runs::Nothing};
} // namespace

const std::array<Row, 4> &FinishActions::rows()
{
    return kRows;
}

const FinishActions::Row &FinishActions::row(FinishAction action)
{
    const auto *found = std::ranges::find(kRows, action, &Row::action);
    return found == kRows.end() ? kNone : *found;
}

FinishAction FinishActions::fromStored(QStringView text)
{
    const auto *found = std::ranges::find(kRows, text, &Row::stored);
    return found == kRows.end() ? FinishAction::None : found->action;
}

QString FinishActions::shownText(const Row &row)
{
    return QCoreApplication::translate("FinishActions", row.shown);
}
