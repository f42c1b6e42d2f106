#include "platform/WindowOrder.h"

#include "platform/WindowActivation.h"

#include <QWidget>

void bringToFront(QWidget &window)
{
    const bool wasShown = window.isVisible();
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
    // A window that is new comes up in front by itself.
    if (wasShown)
        askWindowManagerFor(window);
}
