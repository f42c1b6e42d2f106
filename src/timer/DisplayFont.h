#pragma once

#include <QWidget>

/// The font and the sizes of the texts of the display.
namespace DisplayFont
{
/// The size in points of the big display for this many characters. A text of more than ten shrinks
/// to the width of ten.
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

/// Sets the font of the display in this size in points. Does nothing if the label has it already,
/// as at nearly every tick.
void apply(QWidget &label, double points);
} // namespace DisplayFont
