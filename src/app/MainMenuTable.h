#pragma once

#include "app/MainMenu.h"
#include "app/WufferController.h"
#include "timer/Wuffer.h"

#include <variant>

/// What an item does to the active timer that is none of the timer's own menu operations, and what
/// it shows of it.
struct TimerItem
{
    void (*act)(Wuffer &timer);
    /// Gives the item the text that it has for this timer, or for none, and answers whether it is
    /// enabled.
    bool (*show)(const Wuffer *timer, QAction &item);
};

/// What an item does to the active window.
using WindowOperation = void (*)(QWidget &window);

/// One line of a menu, as written down.
struct MainMenu::Row
{
    /// Null for a separator.
    const char *text = nullptr;
    QList<QKeySequence> shortcuts = {};
    std::variant<std::monostate, WufferController::Operation, Wuffer::Operation, TimerItem,
                 WindowOperation>
        operation = {};
};

/// One menu, as written down.
struct MainMenu::Menu
{
    const char *title;
    std::vector<Row> rows;
};
