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
    // The window manager puts a new window in front by itself.
    if (wasShown)
        askWindowManagerToActivate(window);
}
