#include "controls/ToolTip.h"

#include <QTextDocument>
#include <QWidget>

void ToolTip::set(QWidget &widget, const QString &text)
{
    widget.setToolTip(text.isEmpty() ? text : Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal));
    widget.setAccessibleDescription(text);
}
