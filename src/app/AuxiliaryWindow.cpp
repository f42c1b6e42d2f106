#include "app/AuxiliaryWindow.h"

#include "app/MainMenu.h"
#include "controls/WindowOrder.h"

AuxiliaryWindow::AuxiliaryWindow(MainMenu &menu, const QString &title)
{
    setWindowTitle(title);
    menu.addTo(*this);
}

QSize AuxiliaryWindow::sizeHint() const
{
    return centralWidget() ? QMainWindow::sizeHint() : QSize(420, 300);
}

void AuxiliaryWindow::orderFront()
{
    bringToFront(*this);
}
