#include "app/AuxiliaryWindow.h"

#include "app/MainMenu.h"
#include "controls/WindowOrder.h"

AuxiliaryWindow::AuxiliaryWindow(MainMenu &menu, const QString &title)
{
    setWindowTitle(title);
    resize(420, 300);
    menu.addTo(*this);
}

void AuxiliaryWindow::orderFront()
{
    bringToFront(*this);
}
