#include "timer/DisplayFont.h"

#include "rules/TimerTexts.h"

void DisplayFont::apply(QWidget &label, double points)
{
    if (label.font().pointSizeF() == points && label.font().family() == kResultLabelFont)
        return;
    QFont font(kResultLabelFont.toString());
    font.setStyleHint(QFont::TypeWriter);
    font.setFixedPitch(true);
    font.setPointSizeF(points);
    label.setFont(font);
}
