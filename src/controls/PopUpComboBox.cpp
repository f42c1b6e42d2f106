#include "controls/PopUpComboBox.h"

#include <QWheelEvent>

void PopUpComboBox::showPopup()
{
    Q_EMIT willPopUp();
    QComboBox::showPopup();
}

void PopUpComboBox::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}
