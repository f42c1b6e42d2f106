#include "platform/WindowOrder.h"

#include <QWidget>

#ifdef WUFFER_XCB
#include "platform/WindowManager.h"

/// For a window that only asks for itself a window manager draws attention to it and no more while
/// the user is at something else: of a press in the panel it knows nothing.
static void askWindowManagerFor(const QWidget &window)
{
    const std::optional<WindowManager> manager = WindowManager::ofDisplay();
    if (!manager)
        return;
    const auto number = static_cast<xcb_window_t>(window.winId());
    manager->goToWorkspaceOf(number);
    manager->activate(number);
}
#else
static void askWindowManagerFor(const QWidget & /*window*/) {}
#endif

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
