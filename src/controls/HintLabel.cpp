#include "controls/HintLabel.h"

#include "base/Contrast.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>

/// The share of the ground in the colour of the text.
static constexpr double kPaleness = 0.3;

HintLabel::HintLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    alignWithTextOfBox();
}

QColor HintLabel::color() const
{
    const Rgb text = Rgb::of(palette().color(foregroundRole()));
    const Rgb ground = Rgb::of(palette().color(backgroundRole()));
    const Rgb grey = Contrast::mixed(text, ground, kPaleness);
    const auto [red, green, blue] = Contrast::readable(grey, ground).parts;
    return {red, green, blue};
}

void HintLabel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::StyleChange)
        alignWithTextOfBox();
    QLabel::changeEvent(event);
}

void HintLabel::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    const bool mirrored = isRightToLeft();
    const QRect room =
        contentsRect().adjusted(mirrored ? 0 : indent(), 0, mirrored ? -indent() : 0, 0);
    const auto flags = QStyle::visualAlignment(layoutDirection(), alignment()) | Qt::TextWordWrap;
    QPalette pale = palette();
    pale.setColor(foregroundRole(), color());
    style()->drawItemText(&painter, room, int(flags), pale, isEnabled(), text(), foregroundRole());
}

void HintLabel::alignWithTextOfBox()
{
    setIndent(style()->pixelMetric(QStyle::PM_IndicatorWidth) +
              style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing));
}
