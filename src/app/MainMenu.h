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

/// The menus of the program: one set, carried by every window of it.
///
/// An item acts on the controller, on the timer of the active window, or on the active window
/// itself. Whether it is enabled, and what some are called, is asked of the one it acts on when a
/// menu opens and whenever the active window or the state of a timer changes, so that shortcuts
/// obey the same rules.
class MainMenu final : public QObject
{
    Q_OBJECT

public:
    MainMenu(WufferController &controller, PresetsMenu &presetsMenu);
    ~MainMenu() override;

    /// Gives the window a menu bar with these menus.
    void addTo(QMainWindow &window);

    /// Lets the keys of the items, presets apart, work in a window that shows no menus.
    void addKeysTo(QWidget &window) const;

    /// The item that does this, which there must be.
    [[nodiscard]] QAction &itemFor(void (WufferController::*operation)()) const;

    /// The keys of every item that has some, but for those of the presets.
    [[nodiscard]] static std::vector<MenuKeys> keys();

    /// Asks for every item anew whether it is enabled.
    void validate();

private:
    struct Row;
    struct Menu;
    struct Item;

    [[nodiscard]] static const std::vector<Menu> &menus();
    void addMenu(const Menu &menu);
    /// Adds what is not written down, because it depends on the timers.
    void addWhatComesAndGoes();
    void addItem(QMenu &menu, const Row &row);
    void run(const Row &row);
    [[nodiscard]] bool isEnabled(const Item &item) const;

    WufferController &_controller;
    PresetsMenu &_presetsMenu;
    std::unique_ptr<LinkMenu> _linkMenu;
    std::vector<std::unique_ptr<QMenu>> _menus;
    /// All menus of the menu bar in their order.
    std::vector<QMenu *> _menuBar;
    std::vector<Item> _items;
};
