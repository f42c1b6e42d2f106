#include "controls/PressThrough.h"

#include <QAbstractButton>
#include <QEvent>

namespace
{
bool isOfMouse(const QEvent &event)
{
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        return true;
    default:
        return false;
    }
}
} // namespace

PressThrough::PressThrough(QAbstractButton &button) : QObject(&button), _button(button)
{
    button.installEventFilter(this);
}

bool PressThrough::eventFilter(QObject *watched, QEvent *event)
{
    if (_button.isEnabled() || !isOfMouse(*event))
        return QObject::eventFilter(watched, event);
    // An ignored event goes to the parent widget.
    event->ignore();
    return true;
}
