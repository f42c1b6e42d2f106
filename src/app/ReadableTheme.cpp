#include "app/ReadableTheme.h"

#include "controls/ReadableColor.h"

#include <QApplication>
#include <QScopedValueRollback>

#include <array>

namespace
{
struct Pair
{
    QPalette::ColorRole adjusted;
    QPalette::ColorRole fixed;
};

/// The texts with their grounds. Selected texts keep their colour and get another ground, which
/// stands out more.
constexpr std::array kPairs{Pair{QPalette::WindowText, QPalette::Window},
                            Pair{QPalette::Text, QPalette::Base},
                            Pair{QPalette::ButtonText, QPalette::Button},
                            Pair{QPalette::PlaceholderText, QPalette::Base},
                            Pair{QPalette::Link, QPalette::Base},
                            Pair{QPalette::Link, QPalette::Window},
                            Pair{QPalette::LinkVisited, QPalette::Base},
                            Pair{QPalette::LinkVisited, QPalette::Window},
                            Pair{QPalette::ToolTipText, QPalette::ToolTipBase},
                            Pair{QPalette::Highlight, QPalette::HighlightedText}};

/// The colour as it looks on the ground.
QColor opaque(const QColor &color, const QColor &ground)
{
    return mixed(ground, color, static_cast<double>(color.alphaF()));
}
} // namespace

void ReadableTheme::follow()
{
    // Setting the palette reports a change of the palette.
    if (_following)
        return;
    const QScopedValueRollback following(_following, true);
    withdraw();
    const QPalette theme = QApplication::palette();
    _set = readablePalette(theme);
    _roles = _set.resolveMask() & ~theme.resolveMask();
    if (_set != theme)
        QApplication::setPalette(_set);
}

void ReadableTheme::withdraw()
{
    QPalette palette = QApplication::palette();
    const QPalette::ResolveMask roles = palette.resolveMask() & ~_roles;
    if (roles == palette.resolveMask())
        return;
    palette.setResolveMask(roles);
    QApplication::setPalette(palette);
}

QPalette ReadableTheme::readablePalette(const QPalette &theme)
{
    QPalette palette = theme;
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        for (const auto &[adjusted, fixed] : kPairs) {
            const QColor ground = palette.color(group, fixed);
            const QColor seen = opaque(palette.color(group, adjusted), ground);
            const QColor better = readable(seen, ground);
            if (better != seen)
                palette.setColor(group, adjusted, better);
        }
    }
    return palette;
}
