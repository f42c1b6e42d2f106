#include "controls/WebbyComboBox.h"

#include <QMouseEvent>

int WebbyComboBox::arrowX(const QList<qreal> &frameOrigins, qreal width)
{
    int sum = 0;
    for (const qreal origin : frameOrigins)
        sum = static_cast<int>(sum + origin);
    return static_cast<int>(sum + width - 5.0);
}

int WebbyComboBox::arrowX() const
{
    QList<qreal> origins;
    for (const QWidget *view = this; view && !view->isWindow(); view = view->parentWidget())
        origins.append(view->x());
    return arrowX(origins, width());
}

void WebbyComboBox::mousePressEvent(QMouseEvent *event)
{
    const QPointF inWindow(arrowX(), event->scenePosition().y());
    const QPointF inBox = mapFrom(window(), inWindow);
    QMouseEvent onArrow(event->type(), inBox, inWindow, mapToGlobal(inBox), event->button(),
                        event->buttons(), event->modifiers(), event->pointingDevice());
    onArrow.setTimestamp(event->timestamp());
    QComboBox::mousePressEvent(&onArrow);
    event->setAccepted(onArrow.isAccepted());
}
