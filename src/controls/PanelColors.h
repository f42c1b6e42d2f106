#pragma once

#include <QColor>

class QPalette;

/// The colours of the panel behind the texts of a timer.
///
/// In a light theme the panel is always the same, and its texts have exactly the colours that the
/// timer sets. In a dark theme it has the colours of the theme's fields.
struct PanelColors final
{
    QColor ground;
    QColor edge;
    QColor text;
    /// The colour of a text that stands in an empty field.
    QColor placeholder;

    [[nodiscard]] static PanelColors of(const QPalette &theme);

    /// The palette for the panel and the widgets on it, which sets these colours only.
    [[nodiscard]] QPalette palette() const;

    /// The colour in which to draw a text that the timer has set to this one, on a panel with this
    /// palette. On a light panel it is just this one. On a dark panel black is the colour of its
    /// texts, and any other colour the nearest one of the same hue that can be read.
    [[nodiscard]] static QColor inkFor(const QColor &color, const QPalette &panel);
};
