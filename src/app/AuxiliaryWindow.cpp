#include "app/AuxiliaryWindow.h"

#include "app/MainMenu.h"
#include "platform/WindowOrder.h"

#include <QKeyEvent>
#include <QMenuBar>

AuxiliaryWindow::AuxiliaryWindow(MainMenu &menu, const QString &title)
{
    setWindowTitle(title);
    menu.addTo(*this);
}

void AuxiliaryWindow::orderFront()
{
    widenToMenus();
    bringToFront(*this);
}

void AuxiliaryWindow::widenToMenus()
{
    const int menus = menuBar()->sizeHint().width();
    if (menus > centralWidget()->minimumSizeHint().width())
        centralWidget()->setMinimumWidth(menus);
}

void AuxiliaryWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Cancel))
        close();
    else
        QMainWindow::keyPressEvent(event);
}
