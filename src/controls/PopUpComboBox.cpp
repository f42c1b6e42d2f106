#include "controls/PopUpComboBox.h"

void PopUpComboBox::showPopup()
{
    Q_EMIT willPopUp();
    QComboBox::showPopup();
}
