#pragma once

#include <QMenu>
#include <QPointer>

class QActionGroup;
class Wuffer;

/// The menu that chooses which timer starts when another one has finished. It does for the keyboard
/// what dragging one window onto another does. It is refilled whenever it opens.
class LinkMenu final : public QMenu
{
    Q_OBJECT

public:
    /// For the timer whose window is active when the menu opens.
    LinkMenu();
    /// For this timer, whichever window is active. The parent, a widget of the timer's window, owns
    /// the menu.
    LinkMenu(Wuffer &timer, QWidget &parent);

private:
    void populate();
    void addItem(const QString &text, Wuffer &timer, Wuffer *target);

    /// Makes the items exclusive.
    QActionGroup *_choice;
    /// The timer that the menu is for; null for that of the active window.
    QPointer<Wuffer> _timer;
};
