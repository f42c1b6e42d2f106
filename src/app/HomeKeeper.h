#pragma once

#include <QObject>

#include <functional>
#include <memory>

class HomeWindow;
class QWidget;

/// Keeps the running program reachable: shows the home window while no other window of the program
/// is open, and quits the program when the user closes the home window.
class HomeKeeper final : public QObject
{
    Q_OBJECT

public:
    /// The function makes the home window; it is called when the window is first needed.
    explicit HomeKeeper(std::function<std::unique_ptr<HomeWindow>()> make);
    ~HomeKeeper() override;

    /// Shows the home window if no window is open.
    void showIfNoWindowIsOpen();

    /// Any one open window; null when there is none.
    [[nodiscard]] static QWidget *openWindow();

private:
    void windowShown(QWidget &window);

    std::function<std::unique_ptr<HomeWindow>()> _make;
    std::unique_ptr<HomeWindow> _home;
};
