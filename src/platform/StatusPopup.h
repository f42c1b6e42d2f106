#pragma once

#include <QMenu>

class StatusMenu;

/// The list of a status item as a menu of the program's own, for panels that show no menus
/// themselves. While the menu is open the texts of its lines are updated, but lines are added and
/// removed only when it is opened again.
class StatusPopup final : public QMenu
{
    Q_OBJECT

public:
    StatusPopup() = default;

    /// Opens the list at this place of the screen; does nothing while it is open.
    void open(StatusMenu &menu, const QPoint &place);

private:
    void fill(StatusMenu &menu);
    void updateTexts(StatusMenu &menu);
};
