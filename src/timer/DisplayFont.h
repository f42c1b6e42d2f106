#pragma once

#include <QWidget>

/// The face and the sizes of the display's texts.
namespace DisplayFont
{
/// The size in points of the big display for a text of so many characters. A text of more than
/// ten shrinks to the width of ten.
[[nodiscard]] constexpr double resultSize(qsizetype characters, bool fullScreen)
{
    const double base = fullScreen ? 200.0 : 27.0;
    return characters > 10 ? base / (static_cast<double>(characters) / 10.0) : base;
}

/// The size in points of the milliseconds and of the elapsed line.
[[nodiscard]] constexpr double smallSize(bool fullScreen)
{
    return fullScreen ? 36.0 : 12.0;
}

/// Gives the label the face of the display at this size in points. Costs nothing when it has it
/// already, as it does at nearly every tick.
void apply(QWidget &label, double points);
} // namespace DisplayFont
