#pragma once

#include "rules/RunningTimers.h"

#include <QtGlobal>

#include <memory>

class RunningTimersMenu;
class StatusItem;
class Wuffer;

/// Shows the running timers in a status item: the one that ends first as its title, all of them in
/// its menu. The destructor empties the item.
class StatusPresenter final
{
public:
    explicit StatusPresenter(StatusItem &item);
    ~StatusPresenter();
    Q_DISABLE_COPY_MOVE(StatusPresenter)

    /// Updates the item from the timers, or empties it if the settings hide it.
    void refreshStatusItem();

    /// Empties the item. Its menu and its target stay.
    void removeStatusBar();

private:
    void showMenu(const std::vector<RunningTimers::Running<Wuffer>> &running, bool hasMenu);

    StatusItem &_statusItem;
    /// Made when first needed, then kept.
    std::unique_ptr<RunningTimersMenu> _statusMenu;
};
