#pragma once

#include <QApplication>
#include <QColor>
#include <QPalette>

#include <array>

/// The colours of a theme of the desktop.
struct Theme
{
    const char *name;
    QColor window;
    QColor base;
    QColor text;
    QColor highlight;
    QColor highlightedText;
};

/// The kinds of themes in which the program must be usable.
inline const std::array kThemes{
    Theme{"light", {239, 239, 239}, Qt::white, Qt::black, {48, 140, 198}, Qt::white},
    Theme{"dark", {32, 35, 38}, {20, 22, 24}, {252, 252, 252}, {61, 174, 233}, {252, 252, 252}},
    Theme{"high contrast, black", Qt::black, Qt::black, Qt::white, Qt::yellow, Qt::black},
    Theme{"high contrast, white", Qt::white, Qt::white, Qt::black, Qt::black, Qt::white}};

[[nodiscard]] inline QPalette paletteOf(const Theme &theme)
{
    QPalette palette(theme.window, theme.window);
    for (const QPalette::ColorRole role :
         {QPalette::Text, QPalette::ButtonText, QPalette::WindowText, QPalette::ToolTipText}) {
        for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive})
            palette.setColor(group, role, theme.text);
        // As faint as most themes draw them.
        QColor faint = theme.text;
        faint.setAlpha(70);
        palette.setColor(QPalette::Disabled, role, faint);
    }
    palette.setColor(QPalette::Base, theme.base);
    palette.setColor(QPalette::Disabled, QPalette::Base, theme.window);
    palette.setColor(QPalette::Highlight, theme.highlight);
    palette.setColor(QPalette::HighlightedText, theme.highlightedText);
    QColor hint = theme.text;
    hint.setAlpha(128);
    palette.setColor(QPalette::PlaceholderText, hint);
    palette.setColor(QPalette::Link, Qt::blue);
    return palette;
}

inline void setTheme(const Theme &theme)
{
    QApplication::setPalette(paletteOf(theme));
    QCoreApplication::processEvents();
}
