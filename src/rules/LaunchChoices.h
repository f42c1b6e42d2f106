#pragma once

#include <QStringView>

#include <array>

/// The table of what may open at launch, with a row for each choice.
namespace LaunchChoices
{
struct Row
{
    /// How it is written in the settings, whatever the language.
    QStringView stored;
    /// What the list shows, to be translated in the context "LaunchChoices".
    const char *shown;
    /// Whether a timer opens at all.
    bool opensTimer;
    /// Whether it opens with preset 1 and not as the last timer was left.
    bool takesPreset;
    bool starts;
};

/// In the order of the list. The first is what holds where nothing was chosen.
[[nodiscard]] const std::array<Row, 4> &rows();

/// The choice that is stored by this text; the first of the rows for any other.
[[nodiscard]] const Row &fromStored(QStringView text);

/// What the list shows for it, in the language of the program.
[[nodiscard]] QString shownText(const Row &row);
} // namespace LaunchChoices
