#include "controls/ElidedLineEdit.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionFrame>

namespace
{
/// The space that a text field leaves at each side of its text.
constexpr int kSide = 2;
} // namespace

void ElidedLineEdit::paintEvent(QPaintEvent *event)
{
    QStyleOptionFrame option;
    initStyleOption(&option);
    const QRect room = style()
                           ->subElementRect(QStyle::SE_LineEditContents, &option, this)
                           .marginsRemoved(textMargins())
                           .adjusted(kSide, 0, -kSide, 0);
    if (hasFocus() || fontMetrics().horizontalAdvance(text()) <= room.width()) {
        QLineEdit::paintEvent(event);
        return;
    }
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_PanelLineEdit, &option, &painter, this);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, room.width());
    style()->drawItemText(&painter, room, int(Qt::AlignCenter) | Qt::TextSingleLine, palette(),
                          isEnabled(), shown, QPalette::Text);
}
