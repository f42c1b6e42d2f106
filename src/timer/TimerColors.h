#pragma once

#include <QColor>

/// The colour of a text of the display, by its meaning. The program compares these values and not
/// QColors, so that it takes no other blue for the mark of a preset.
enum class TextColor {
    Black,
    /// The last seconds, the alarm, and the elapsed line of a chained timer.
    Red,
    /// The controls hold an unchanged preset.
    Blue,
};

/// The colour of such a text, the same in every theme. In a dark one it is drawn in a colour of
/// this hue that can be read.
[[nodiscard]] inline QColor colorOf(TextColor color)
{
    switch (color) {
    case TextColor::Black:
        break;
    case TextColor::Red:
        return QColor::fromRgbF(0.9F, 0.0F, 0.0F);
    case TextColor::Blue:
        return Qt::blue;
    }
    return Qt::black;
}
