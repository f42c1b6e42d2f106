#pragma once

#include "rules/RunningTimers.h"

#include <QtGlobal>

#include <memory>

class RunningTimersMenu;
class StatusItem;
class Wuffer;

/// Shows the running timers in a status item: what ends first as its title, all of them in its
/// menu. Empties the item when it goes.
class StatusPresenter final
{
public:
    explicit StatusPresenter(StatusItem &item);
    ~StatusPresenter();
    Q_DISABLE_COPY_MOVE(StatusPresenter)

    /// Brings the item up to date with the timers, or empties it where the settings want none.
    void refreshStatusItem();

    /// Empties the item. Its menu and its target stay.
    void removeStatusBar();

private:
    void showMenu(const std::vector<RunningTimers::Running<Wuffer>> &running, bool hasMenu);

    StatusItem &_statusItem;
    /// Made when it is first needed, and used again.
    std::unique_ptr<RunningTimersMenu> _statusMenu;
};
