#include "controls/PopUpComboBox.h"

#include <QWheelEvent>

void PopUpComboBox::showPopup()
{
    Q_EMIT willPopUp();
    SpokenComboBox::showPopup();
}

void PopUpComboBox::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}
