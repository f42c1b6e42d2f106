#pragma once

#include <QString>

class QWidget;

/// Tool tips of texts that may hold what a user has typed.
namespace ToolTip
{
/// Gives the widget this tool tip, word for word: what looks like markup is none. Programs that
/// read the screen aloud get it as the description of the widget. None for an empty text.
void set(QWidget &widget, const QString &text);
} // namespace ToolTip
