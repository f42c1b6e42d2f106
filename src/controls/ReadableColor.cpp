#include "controls/ReadableColor.h"

#include <QPalette>

namespace
{
QColor colorFrom(Rgb rgb)
{
    const auto [red, green, blue] = rgb.parts;
    return {red, green, blue};
}
} // namespace

QColor readable(const QColor &color, const QColor &ground, double least)
{
    const Rgb nearest = Contrast::readable(Rgb::of(color), Rgb::of(ground), least);
    // A colour that stays the same keeps its exact value.
    return nearest == Rgb::of(color) ? color : colorFrom(nearest);
}

QColor mixed(const QColor &color, const QColor &other, double share)
{
    return colorFrom(Contrast::mixed(Rgb::of(color), Rgb::of(other), share));
}

bool isDark(const QPalette &theme)
{
    const auto brightness = [&](QPalette::ColorRole role) {
        return Contrast::luminance(Rgb::of(theme.color(QPalette::Active, role)));
    };
    return brightness(QPalette::Base) < brightness(QPalette::Text);
}
