#include "rules/LaunchChoices.h"

#include "rules/PreferenceTexts.h"

#include <QCoreApplication>

#include <algorithm>

namespace
{
using LaunchChoices::Row;

constexpr std::array kRows{
    Row{kLaunchTimer, QT_TRANSLATE_NOOP("LaunchChoices", "Open a Wuffer"), true, false, false},
    Row{kLaunchNothing, QT_TRANSLATE_NOOP("LaunchChoices", "Do Nothing"), false, false, false},
    Row{kLaunchPreset, QT_TRANSLATE_NOOP("LaunchChoices", "Open Preset ⌘1"), true, true, false},
    Row{kLaunchAndStartPreset, QT_TRANSLATE_NOOP("LaunchChoices", "Open and Start Preset ⌘1"), true,
        true, true},
};
} // namespace

const std::array<Row, 4> &LaunchChoices::rows()
{
    return kRows;
}

const Row &LaunchChoices::fromStored(QStringView text)
{
    const auto *found = std::ranges::find(kRows, text, &Row::stored);
    return found == kRows.end() ? kRows.front() : *found;
}

QString LaunchChoices::shownText(const Row &row)
{
    return QCoreApplication::translate("LaunchChoices", row.shown);
}
