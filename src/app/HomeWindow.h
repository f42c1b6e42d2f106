#pragma once

#include <QMainWindow>

#include <memory>
#include <vector>

class MainMenu;
class QPushButton;

namespace Ui
{
class Home;
}

/// The window that is open while no other window of the program is: the menus, a button for a new
/// timer and one for each of the ten presets. Each button triggers a menu item. HomeKeeper decides
/// when the window shows.
class HomeWindow final : public QMainWindow
{
    Q_OBJECT

public:
    /// The presets are listed in the order given. All items must outlive the window.
    HomeWindow(MainMenu &menu, QAction &newTimer, const std::vector<QAction *> &presets);
    ~HomeWindow() override;

Q_SIGNALS:
    /// The user has closed the window.
    void closed();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    /// In a window that is narrower than its menu bar, the last menus hide behind an arrow.
    void widenToMenus();
    void addPreset(QAction &preset);

    std::unique_ptr<Ui::Home> _ui;
};
