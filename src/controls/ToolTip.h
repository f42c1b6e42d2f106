#pragma once

#include <QString>

class QWidget;

/// Tool tips of texts that a user may have typed.
namespace ToolTip
{
/// Shows this text as the tool tip of the widget, without interpreting markup in it. Screen readers
/// get it as the description of the widget. An empty text removes both.
void set(QWidget &widget, const QString &text);
} // namespace ToolTip
