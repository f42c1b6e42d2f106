#include "app/HomeKeeper.h"

#include "app/HomeWindow.h"
#include "app/WufferApplication.h"

#include <algorithm>

namespace
{
/// Whether this is an independent window: not a popup, a dialog or the child of another window.
bool isIndependent(const QWidget &window)
{
    return window.windowType() == Qt::Window && window.parentWidget() == nullptr;
}
} // namespace

HomeKeeper::HomeKeeper(std::function<std::unique_ptr<HomeWindow>()> make) : _make(std::move(make))
{
    // When the last window closes, the home window opens and the program goes on.
    QApplication::setQuitOnLastWindowClosed(false);
    const WufferApplication &application = WufferApplication::instance();
    // Queued, because a window may close just before the next one opens.
    connect(&application, &WufferApplication::windowHidden, this, &HomeKeeper::showIfNoWindowIsOpen,
            Qt::QueuedConnection);
    connect(&application, &WufferApplication::windowShown, this,
            [this](QWidget *window) { windowShown(*window); });
}

HomeKeeper::~HomeKeeper() = default;

void HomeKeeper::showIfNoWindowIsOpen()
{
    if (openWindow() || WufferApplication::isQuitting())
        return;
    if (!_home) {
        _home = _make();
        connect(_home.get(), &HomeWindow::closed, qApp, &QCoreApplication::quit);
    }
    _home->show();
    _home->activateWindow();
}

QWidget *HomeKeeper::openWindow()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto open = std::ranges::find_if(windows, [](const QWidget *window) {
        return isIndependent(*window) && window->isVisible();
    });
    return open == windows.end() ? nullptr : *open;
}

void HomeKeeper::windowShown(QWidget &window)
{
    if (_home && &window != _home.get() && isIndependent(window))
        _home->hide();
}
