#pragma once

#include <QMainWindow>

class MainMenu;

/// A window beside the timers, such as the help, with the menus of the program. Escape closes it.
/// It is empty until the controller gives it a central widget.
class AuxiliaryWindow final : public QMainWindow
{
    Q_OBJECT

public:
    AuxiliaryWindow(MainMenu &menu, const QString &title);

    /// Shows the window in front of the program's others and makes it the active one.
    void orderFront();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    /// In a window that is narrower than its menu bar, the last menus hide behind an arrow.
    void widenToMenus();
};
