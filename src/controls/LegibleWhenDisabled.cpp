#include "controls/LegibleWhenDisabled.h"

#include "controls/ReadableColor.h"

#include <QEvent>
#include <QPalette>
#include <QWidget>

#include <array>
#include <utility>

namespace
{
/// The texts of fields and of buttons, with what they stand on.
constexpr std::array kTexts{std::pair(QPalette::Text, QPalette::Base),
                            std::pair(QPalette::ButtonText, QPalette::Button)};

/// How much of its ground the colour of a disabled text has in it. Styles draw buttons a little
/// lighter or darker than their colour, so this leaves more contrast than is needed.
constexpr double kPaleness = 0.35;
} // namespace

LegibleWhenDisabled::LegibleWhenDisabled(QWidget &widget) : QObject(&widget), _widget(widget)
{
    widget.installEventFilter(this);
    adjust();
}

bool LegibleWhenDisabled::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::PaletteChange)
        adjust();
    return QObject::eventFilter(watched, event);
}

void LegibleWhenDisabled::adjust()
{
    const QPalette &theme = _widget.palette();
    QPalette palette;
    for (const auto &[text, ground] : kTexts) {
        const QColor under = theme.color(QPalette::Disabled, ground);
        const QColor pale = mixed(theme.color(QPalette::Active, text), under, kPaleness);
        palette.setColor(QPalette::Disabled, text, readable(pale, under));
    }
    _widget.setPalette(palette);
}
