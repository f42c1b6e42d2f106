#pragma once

#include <QMenu>

class StatusMenu;

/// The list of a status item as a menu of ours, for panels that leave the showing to the program.
/// A line whose text changes while the menu is open changes under the pointer; the menu itself
/// stays as it is until it is opened again.
class StatusPopup final : public QMenu
{
    Q_OBJECT

public:
    StatusPopup() = default;

    /// Opens the list there, in front of everything.
    void open(StatusMenu &menu, const QPoint &place);

private:
    void fill(StatusMenu &menu);
    void updateTexts(StatusMenu &menu);
};
