#pragma once

#include <QColor>

/// What colours a display's texts. Told apart by which one it is and not by how it looks, so that
/// nothing but the mark of a preset is ever taken for one.
enum class TextColor {
    Black,
    /// The last seconds, the alarm, and the line that tells of a chain.
    Red,
    /// The controls hold a preset unchanged.
    Blue,
};

/// How the colour looks. The display is light in every theme.
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
