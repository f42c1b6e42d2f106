#include "app/AuxiliaryWindow.h"

#include "app/MainMenu.h"
#include "platform/WindowOrder.h"

#include <QKeyEvent>

AuxiliaryWindow::AuxiliaryWindow(MainMenu &menu, const QString &title)
{
    setWindowTitle(title);
    menu.addTo(*this);
}

void AuxiliaryWindow::orderFront()
{
    bringToFront(*this);
}

void AuxiliaryWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Cancel))
        close();
    else
        QMainWindow::keyPressEvent(event);
}
