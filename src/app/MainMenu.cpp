#include "app/MainMenu.h"

#include "app/KeepOnTopItem.h"
#include "app/LinkMenu.h"
#include "app/MainMenuTable.h"
#include "app/PresetsMenu.h"
#include "app/TimerList.h"
#include "app/WufferApplication.h"
#include "base/Mnemonics.h"

#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QWindow>

#include <algorithm>

namespace
{
/// The timer of the active window; null if that window is closing.
Wuffer *openKeyWuffer()
{
    Wuffer *timer = WufferApplication::keyWuffer();
    return std::ranges::count(WufferApplication::getWuffers(), timer) > 0 ? timer : nullptr;
}
} // namespace

/// A menu item, with the row of the table that it was made from.
struct MainMenu::Item
{
    QAction *action;
    const Row *row;
};

MainMenu::MainMenu(WufferController &controller, PresetsMenu &presetsMenu) :
    _controller(controller), _presetsMenu(presetsMenu), _linkMenu(std::make_unique<LinkMenu>())
{
    for (const Menu &menu : menus())
        addMenu(menu);
    addDynamicItems();
    connect(&_presetsMenu, &QMenu::aboutToShow, this, &MainMenu::validate);

    connect(qApp, &QApplication::focusWindowChanged, this, &MainMenu::validate);
    connect(&WufferApplication::instance(), &WufferApplication::wufferOpened, this,
            [this](Wuffer *timer) {
                connect(timer, &Wuffer::stateChanged, this, &MainMenu::validate);
            });
}

MainMenu::~MainMenu() = default;

void MainMenu::addDynamicItems()
{
    constexpr int timerMenu = 1;
    constexpr int windowMenu = 2;
    _menuBar.at(timerMenu)->addSeparator();
    _menuBar.at(timerMenu)->addMenu(_linkMenu.get());
    QMenu &windows = *_menuBar.at(windowMenu);
    // After Minimize.
    new KeepOnTopItem(windows, windows.actions().value(1));
    windows.addSeparator();
    new TimerList(windows);
    _menuBar.insert(_menuBar.begin() + timerMenu + 1, &_presetsMenu);
}

void MainMenu::addTo(QMainWindow &window)
{
    for (QMenu *menu : _menuBar)
        window.menuBar()->addMenu(menu);
}

void MainMenu::addKeysTo(QWidget &window) const
{
    for (const Item &item : _items)
        window.addAction(item.action);
}

QAction &MainMenu::itemFor(WufferController::Operation operation) const
{
    const auto item = std::ranges::find_if(_items, [&](const Item &each) {
        const auto *own = std::get_if<WufferController::Operation>(&each.row->operation);
        return own != nullptr && *own == operation;
    });
    Q_ASSERT(item != _items.end());
    return *item->action;
}

std::vector<MenuKeys> MainMenu::keys()
{
    std::vector<MenuKeys> keys;
    for (const Menu &menu : menus()) {
        for (const Row &row : menu.rows) {
            if (!row.shortcuts.isEmpty())
                keys.push_back({Mnemonics::shown(tr(menu.title)), Mnemonics::shown(tr(row.text)),
                                row.shortcuts});
        }
    }
    return keys;
}

void MainMenu::validate()
{
    for (const Item &item : _items)
        item.action->setEnabled(isEnabled(item));
    _linkMenu->menuAction()->setEnabled(WufferApplication::keyWuffer() != nullptr);
    _presetsMenu.validate();
}

void MainMenu::addMenu(const Menu &menu)
{
    QMenu &made = *_menus.emplace_back(std::make_unique<QMenu>(tr(menu.title)));
    _menuBar.push_back(&made);
    connect(&made, &QMenu::aboutToShow, this, &MainMenu::validate);
    for (const Row &row : menu.rows)
        addItem(made, row);
}

void MainMenu::addItem(QMenu &menu, const Row &row)
{
    if (!row.text) {
        menu.addSeparator();
        return;
    }
    QAction *action = menu.addAction(tr(row.text));
    action->setShortcuts(row.shortcuts);
    connect(action, &QAction::triggered, this, [this, &row] { run(row); });
    _items.push_back({action, &row});
}

void MainMenu::run(const Row &row)
{
    const auto &operation = row.operation;
    if (const auto *ofController = std::get_if<WufferController::Operation>(&operation)) {
        (_controller.**ofController)();
    } else if (const auto *ofTimer = std::get_if<Wuffer::Operation>(&operation)) {
        if (Wuffer *timer = WufferApplication::keyWuffer())
            (timer->**ofTimer)();
    } else if (const auto *item = std::get_if<TimerItem>(&operation)) {
        if (Wuffer *timer = openKeyWuffer())
            item->act(*timer);
    } else if (const auto *ofWindow = std::get_if<WindowOperation>(&operation)) {
        if (QWidget *window = QApplication::activeWindow())
            (*ofWindow)(*window);
    }
}

bool MainMenu::isEnabled(const Item &item) const
{
    const auto &operation = item.row->operation;
    if (const auto *ofController = std::get_if<WufferController::Operation>(&operation))
        return _controller.validateMenuItem(*ofController);
    if (const auto *ofTimer = std::get_if<Wuffer::Operation>(&operation)) {
        const Wuffer *timer = WufferApplication::keyWuffer();
        return timer != nullptr && timer->validateMenuItem(*item.action, *ofTimer);
    }
    if (const auto *ofItem = std::get_if<TimerItem>(&operation))
        return ofItem->show(openKeyWuffer(), *item.action);
    return QApplication::activeWindow() != nullptr;
}
