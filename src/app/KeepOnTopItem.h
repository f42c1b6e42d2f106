#pragma once

#include <QObject>

class QAction;
class QMenu;

/// The menu item that keeps the window of the active timer above those of all programs. It asks the
/// window manager for the state whenever the menu opens, and keeps none itself: other programs
/// change it, too. Disabled where no window manager does it, and without an active timer.
class KeepOnTopItem final : public QObject
{
    Q_OBJECT

public:
    /// Adds the item to the menu, which owns this object, before another one.
    KeepOnTopItem(QMenu &menu, QAction *before);

private:
    void refresh();

    QAction *_item;
};
