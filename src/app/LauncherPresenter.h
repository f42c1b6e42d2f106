#pragma once

#include "platform/LauncherEntry.h"

#include <QtGlobal>

/// Shows the timer that ends first in the program's icon in the panel or dock: how far its
/// countdown has come, and that it rings.
class LauncherPresenter final
{
public:
    explicit LauncherPresenter(LauncherEntry &entry);
    ~LauncherPresenter();
    Q_DISABLE_COPY_MOVE(LauncherPresenter)

    /// Updates the icon from the timers.
    void refresh();

private:
    LauncherEntry &_entry;
};
