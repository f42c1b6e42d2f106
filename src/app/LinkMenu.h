#pragma once

#include <QMenu>

class QActionGroup;
class Wuffer;

/// The menu that says which timer the active one starts when it has finished: what dragging one
/// window onto another does, for the keyboard. It is filled anew whenever it opens.
class LinkMenu final : public QMenu
{
    Q_OBJECT

public:
    LinkMenu();

private:
    void populate();
    void addItem(const QString &text, Wuffer &timer, Wuffer *target);

    /// Of the items one is chosen.
    QActionGroup *_choice;
};
