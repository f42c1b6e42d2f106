#pragma once

#include <QObject>

#include <memory>
#include <vector>

class QAction;
class QActionGroup;
class QMenu;
class Wuffer;

/// The last items of a menu: the open timers in the order in which they were made, the active one
/// checked. Choosing one brings it to the front. They are made anew whenever the menu opens.
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
    /// Of the items one is checked.
    QActionGroup *_active;
    std::vector<std::unique_ptr<QAction>> _items;
};
