#include "platform/WindowLevel.h"

#include "platform/linux/WindowManager.h"

#include <QWidget>

namespace
{
constexpr QByteArrayView kAbove = "_NET_WM_STATE_ABOVE";

xcb_window_t numberOf(const QWidget &window)
{
    return static_cast<xcb_window_t>(window.winId());
}
} // namespace

bool WindowLevel::canKeepOnTop()
{
    const std::optional<WindowManager> manager = WindowManager::ofDisplay();
    return manager && manager->supports(kAbove);
}

bool WindowLevel::isKeptOnTop(const QWidget &window)
{
    const std::optional<WindowManager> manager = WindowManager::ofDisplay();
    return manager && manager->hasState(numberOf(window), kAbove);
}

void WindowLevel::keepOnTop(QWidget &window, bool onTop)
{
    if (const std::optional<WindowManager> manager = WindowManager::ofDisplay())
        manager->setState(numberOf(window), kAbove, onTop);
}
