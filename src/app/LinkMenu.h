#pragma once

#include <QMenu>
#include <QPointer>

class QActionGroup;
class Wuffer;

/// The menu that says which timer another one starts when it has finished: what dragging one window
/// onto another does, for the keyboard. It is filled anew whenever it opens.
class LinkMenu final : public QMenu
{
    Q_OBJECT

public:
    /// For the timer of the window that is active whenever the menu opens.
    LinkMenu();
    /// For this timer, whichever window is active. Belongs to the parent, which lives in its
    /// window.
    LinkMenu(Wuffer &timer, QWidget &parent);

private:
    void populate();
    void addItem(const QString &text, Wuffer &timer, Wuffer *target);

    /// Of the items one is chosen.
    QActionGroup *_choice;
    /// The timer that the menu is for; null for that of the active window.
    QPointer<Wuffer> _timer;
};
