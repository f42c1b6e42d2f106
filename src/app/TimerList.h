#pragma once

#include <QObject>

#include <memory>
#include <vector>

class QAction;
class QActionGroup;
class QMenu;
class Wuffer;

/// The last items of a menu: the open timers in the order in which they were made, the active one
/// checked. Choosing an item brings its timer to the front. The items are remade whenever the menu
/// opens.
class TimerList final : public QObject
{
    Q_OBJECT

public:
    /// The menu owns this object.
    explicit TimerList(QMenu &menu);
    ~TimerList() override;

private:
    void populate();
    void addItem(Wuffer &timer);

    QMenu &_menu;
    /// Makes the items exclusive.
    QActionGroup *_active;
    std::vector<std::unique_ptr<QAction>> _items;
};
