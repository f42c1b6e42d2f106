#include "controls/PanelColors.h"

#include "controls/ReadableColor.h"

#include <QPalette>

#include <algorithm>

namespace
{
/// The least contrast of a coloured text on a dark panel. Its letters are thin, so they look darker
/// there than they are.
constexpr double kThinLetters = 6.0;

PanelColors lightPanel()
{
    return {QColor(0xFB, 0xFA, 0xF5), QColor(0xC9, 0xC4, 0xB6), Qt::black,
            QColor(0x6B, 0x67, 0x5C)};
}

PanelColors darkPanel(const QPalette &theme)
{
    constexpr double edgeShare = 0.25;
    constexpr double placeholderShare = 0.4;
    const QColor ground = theme.color(QPalette::Active, QPalette::Base);
    const QColor text = readable(theme.color(QPalette::Active, QPalette::Text), ground);
    return {ground, mixed(ground, text, edgeShare), text,
            readable(mixed(text, ground, placeholderShare), ground)};
}
} // namespace

PanelColors PanelColors::of(const QPalette &theme)
{
    if (!isDark(theme))
        return lightPanel();
    // On a ground of medium brightness only black may be readable.
    const PanelColors colors = darkPanel(theme);
    return isDark(colors.palette()) ? colors : lightPanel();
}

QPalette PanelColors::palette() const
{
    QPalette palette;
    palette.setColor(QPalette::Base, ground);
    palette.setColor(QPalette::Window, ground);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::PlaceholderText, placeholder);
    return palette;
}

QColor PanelColors::inkFor(const QColor &color, const QPalette &panel)
{
    if (!isDark(panel))
        return color;
    const QColor text = panel.color(QPalette::Text);
    if (color == QColor(Qt::black))
        return text;
    const QColor ground = panel.color(QPalette::Base);
    const double contrast = Contrast::ratio(Rgb::of(text), Rgb::of(ground));
    return readable(color, ground, std::min(kThinLetters, contrast));
}
