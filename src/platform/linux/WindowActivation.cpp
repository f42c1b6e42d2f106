#include "platform/WindowActivation.h"

#include "platform/linux/WindowManager.h"

#include <QWidget>

void askWindowManagerToActivate(const QWidget &window)
{
    const std::optional<WindowManager> manager = WindowManager::ofDisplay();
    if (!manager)
        return;
    const auto number = static_cast<xcb_window_t>(window.winId());
    manager->goToWorkspaceOf(number);
    manager->activate(number);
}
