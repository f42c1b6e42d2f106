#pragma once

#include "app/MainMenu.h"
#include "app/WufferController.h"
#include "timer/Wuffer.h"

#include <variant>

/// What an item does to the active timer, if that is not one of the timer's own menu operations.
struct TimerItem
{
    void (*act)(Wuffer &timer);
    /// Sets the item's text, if it varies, and returns whether the item is enabled. The timer is
    /// null when no timer is active.
    bool (*show)(const Wuffer *timer, QAction &item);
};

/// What an item does to the active window.
using WindowOperation = void (*)(QWidget &window);

/// One row of the table of a menu.
struct MainMenu::Row
{
    /// Null for a separator.
    const char *text = nullptr;
    QList<QKeySequence> shortcuts = {};
    std::variant<std::monostate, WufferController::Operation, Wuffer::Operation, TimerItem,
                 WindowOperation>
        operation = {};
};

/// One menu with its table of rows.
struct MainMenu::Menu
{
    const char *title;
    std::vector<Row> rows;
};
