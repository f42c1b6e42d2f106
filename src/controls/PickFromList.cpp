#include "controls/PickFromList.h"

#include <QComboBox>
#include <QKeyEvent>

namespace
{
/// A key with Control, Alt or Meta, which is not meant for a box.
bool isCommand(const QKeyEvent &event)
{
    constexpr auto command = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    return event.modifiers().testAnyFlags(command) && !event.text().isEmpty();
}

/// Whether a closed combo box would select another entry at this key.
bool selects(const QKeyEvent &event)
{
    switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
        return true;
    default:
        return !event.text().isEmpty() && event.text().at(0).isPrint();
    }
}
} // namespace

PickFromList::PickFromList(QComboBox &combo) : QObject(&combo), _combo(combo)
{
    combo.installEventFilter(this);
}

bool PickFromList::eventFilter(QObject *watched, QEvent *event)
{
    const bool key = event->type() == QEvent::KeyPress;
    if (event->type() == QEvent::Wheel || (key && isCommand(*static_cast<QKeyEvent *>(event)))) {
        // An ignored event goes to the parent widget, which may use it.
        event->ignore();
        return true;
    }
    if (key && selects(*static_cast<QKeyEvent *>(event))) {
        _combo.showPopup();
        return true;
    }
    return QObject::eventFilter(watched, event);
}
