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

/// What is there when no other window of the program is: its menus, a button for a new timer and
/// the ten presets. The buttons do what items of the menus do, and say the same. When it shows is
/// up to HomeKeeper.
class HomeWindow final : public QMainWindow
{
    Q_OBJECT

public:
    /// The items, which must outlive the window, in the order in which they are to be listed.
    HomeWindow(MainMenu &menu, QAction &newTimer, const std::vector<QAction *> &presets);
    ~HomeWindow() override;

Q_SIGNALS:
    /// The user has closed it.
    void closed();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void addPreset(QAction &preset);

    std::unique_ptr<Ui::Home> _ui;
};
