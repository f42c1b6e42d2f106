#pragma once

#include <QObject>

class QAction;
class QMenu;

/// The menu item that keeps the window of the active timer above those of all programs. It stores
/// no state: it asks the window manager whenever the menu opens, because other programs can change
/// the state too. Disabled without an active timer, and where no window manager supports it.
class KeepOnTopItem final : public QObject
{
    Q_OBJECT

public:
    /// Inserts the item before another one. The menu owns this object.
    KeepOnTopItem(QMenu &menu, QAction *before);

private:
    void refresh();

    QAction *_item;
};
