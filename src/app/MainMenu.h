#pragma once

#include "tools/HelpPages.h"

#include <QObject>

#include <memory>
#include <vector>

class QAction;
class QMainWindow;
class QMenu;
class QWidget;
class LinkMenu;
class PresetsMenu;
class WufferController;

/// The menus of the program: one set, shared by all its windows.
///
/// An item acts on the controller, on the timer of the active window, or on the active window
/// itself. That object decides whether the item is enabled and, for some items, which text it has.
/// Items are updated when a menu opens and whenever the active window or the state of a timer
/// changes, so that shortcuts obey the same rules.
class MainMenu final : public QObject
{
    Q_OBJECT

public:
    MainMenu(WufferController &controller, PresetsMenu &presetsMenu);
    ~MainMenu() override;

    /// Gives the window a menu bar with these menus.
    void addTo(QMainWindow &window);

    /// Makes the shortcuts of the items, except the presets', work in a window without a menu bar.
    void addKeysTo(QWidget &window) const;

    /// The item with this operation. There must be one.
    [[nodiscard]] QAction &itemFor(void (WufferController::*operation)()) const;

    /// The keys of every item that has some, except the presets.
    [[nodiscard]] static std::vector<MenuKeys> keys();

    /// Updates which items are enabled, and the texts that vary.
    void validate();

private:
    struct Row;
    struct Menu;
    struct Item;

    [[nodiscard]] static const std::vector<Menu> &menus();
    void addMenu(const Menu &menu);
    /// Adds what is not in the table because it depends on the timers.
    void addDynamicItems();
    void addItem(QMenu &menu, const Row &row);
    void run(const Row &row);
    [[nodiscard]] bool isEnabled(const Item &item) const;

    WufferController &_controller;
    PresetsMenu &_presetsMenu;
    std::unique_ptr<LinkMenu> _linkMenu;
    std::vector<std::unique_ptr<QMenu>> _menus;
    /// All menus of the menu bar, in order.
    std::vector<QMenu *> _menuBar;
    std::vector<Item> _items;
};
