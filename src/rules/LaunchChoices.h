#pragma once

#include <QStringView>

#include <array>

/// The table of what may open at launch, one row for each choice.
namespace LaunchChoices
{
struct Row
{
    /// The text in the settings, the same in every language.
    QStringView stored;
    /// The text in the list, to be translated in the context "LaunchChoices".
    const char *shown;
    /// Whether a timer opens.
    bool opensTimer;
    /// Whether the timer opens with preset 1 instead of the settings of the last timer.
    bool takesPreset;
    bool starts;
};

/// In the order of the list. The first row is the default.
[[nodiscard]] const std::array<Row, 4> &rows();

/// The choice stored as this text; the default for any other text.
[[nodiscard]] const Row &fromStored(QStringView text);

/// The translated text for the list.
[[nodiscard]] QString shownText(const Row &row);
} // namespace LaunchChoices
