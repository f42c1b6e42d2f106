#include "app/DarkTheme.h"

#include <QApplication>

DarkTheme::DarkTheme()
{
    QObject::connect(&_preference, &DarkPreference::changed, &_preference,
                     [this] { setDark(_preference.isDark()); });
}

void DarkTheme::setDark(bool dark)
{
    constexpr float middle = 0.5F;
    const bool isLight = QApplication::palette().window().color().lightnessF() > middle;
    const bool set = dark && (_isSet || isLight);
    if (set == std::exchange(_isSet, set))
        return;
    QApplication::setPalette(set ? palette() : QPalette());
}

QPalette DarkTheme::palette()
{
    const QColor text(255, 255, 255);
    QPalette palette(QColor(58, 58, 58), QColor(38, 38, 38));
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::BrightText,
          QPalette::HighlightedText, QPalette::ToolTipText})
        palette.setColor(role, text);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText})
        palette.setColor(QPalette::Disabled, role, QColor(150, 150, 150));
    palette.setColor(QPalette::Base, QColor(28, 28, 28));
    palette.setColor(QPalette::AlternateBase, QColor(44, 44, 44));
    palette.setColor(QPalette::ToolTipBase, QColor(20, 20, 20));
    palette.setColor(QPalette::PlaceholderText, QColor(160, 160, 160));
    palette.setColor(QPalette::Highlight, QColor(30, 96, 176));
    palette.setColor(QPalette::Link, QColor(120, 174, 237));
    palette.setColor(QPalette::LinkVisited, QColor(190, 150, 230));
    return palette;
}
