#include "controls/ToolTip.h"

#include <QTextDocument>
#include <QWidget>

void ToolTip::set(QWidget &widget, const QString &text)
{
    // By default a tool tip with markup breaks even a short text into lines.
    constexpr qsizetype mostCharactersInALine = 65;
    const auto mode =
        text.length() <= mostCharactersInALine ? Qt::WhiteSpacePre : Qt::WhiteSpaceNormal;
    widget.setToolTip(text.isEmpty() ? text : Qt::convertFromPlainText(text, mode));
    widget.setAccessibleDescription(text);
}
