#include "app/HomeKeeper.h"

#include "app/HomeWindow.h"
#include "app/WufferApplication.h"

#include <algorithm>

namespace
{
/// Whether it is a window in its own right, and not something that another has brought up.
bool isOfItsOwn(const QWidget &window)
{
    return window.windowType() == Qt::Window && window.parentWidget() == nullptr;
}
} // namespace

HomeKeeper::HomeKeeper(std::function<std::unique_ptr<HomeWindow>()> make) : _make(std::move(make))
{
    // The last window that closes makes room for the home window.
    QApplication::setQuitOnLastWindowClosed(false);
    const WufferApplication &application = WufferApplication::instance();
    // Later, because one may only make room for another.
    connect(&application, &WufferApplication::windowHidden, this, &HomeKeeper::look,
            Qt::QueuedConnection);
    connect(&application, &WufferApplication::windowShown, this,
            [this](QWidget *window) { windowShown(*window); });
}

HomeKeeper::~HomeKeeper() = default;

void HomeKeeper::look()
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
    const auto open = std::ranges::find_if(
        windows, [](const QWidget *window) { return isOfItsOwn(*window) && window->isVisible(); });
    return open == windows.end() ? nullptr : *open;
}

void HomeKeeper::windowShown(QWidget &window)
{
    if (_home && &window != _home.get() && isOfItsOwn(window))
        _home->hide();
}
